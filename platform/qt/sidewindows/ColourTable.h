#pragma once

#include "platform/qt/theme/Appearance.h"

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

    /// Which values are shown; the standard ones at first.
    void setClassPalette(ClassPalette palette);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addHeadings();
    void addRow(int row, Colour colour, const QString& name, const QString& wordClass);
    QLabel* addLabel(int row, int column, const QString& text);
    void addValue(int row, int column, Colour colour, Appearance appearance);

    struct Value {
        Colour colour;
        Appearance appearance;
        QLabel* label;
    };

    QGridLayout* grid_;
    QList<Value> values_;
};

} // namespace lexiform::qt
