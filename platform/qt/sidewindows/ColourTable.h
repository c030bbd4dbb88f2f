#pragma once

#include "base/Colour.h"

#include <QGridLayout>
#include <QLabel>
#include <QWidget>

namespace lexiform::qt {

/// The class colours and the text colour in rows: a swatch and its name, the class, and the value on a light
/// and on a dark pane.
class ColourTable : public QWidget {
    Q_OBJECT

public:
    explicit ColourTable(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addHeadings();
    void addRow(int row, Colour colour, const QString& name, const QString& wordClass);
    QLabel* addLabel(int row, int column, const QString& text);

    QGridLayout* grid_;
};

} // namespace lexiform::qt
