#pragma once

#include "platform/qt/panes/findMatches.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace lexiform::qt {

/// The bar in which a person says what to find. It asks and shows; others search.
class FindBar : public QFrame {
    Q_OBJECT

public:
    explicit FindBar(QWidget* parent = nullptr);

    [[nodiscard]] FindQuery query() const;
    /// Whether anything is entered.
    [[nodiscard]] bool hasQuery() const { return !wanted_->text().isEmpty(); }

    /// Shows the bar with the keyboard in it, and says which pane is searched. A `suggestion` takes the
    /// place of what was entered before, unless it is empty.
    void open(const QString& pane, const QString& suggestion);
    /// Enters a query, without the news of it.
    void setQuery(const FindQuery& query);
    void setPane(const QString& pane);

    /// Says how the search went. The words alone carry the meaning.
    void tell(const QString& message);
    [[nodiscard]] QString told() const { return told_->text(); }

signals:
    /// What is wanted, or how, has changed.
    void queryChanged();
    void nextRequested();
    void previousRequested();
    /// The bar has been closed by its user.
    void dismissed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QCheckBox* addChoice(const QString& title);
    void addButton(const QString& title, const QString& toolTip, void (FindBar::*asked)());
    void dismiss();

    QLineEdit* wanted_;
    QCheckBox* matchCase_ = nullptr;
    QCheckBox* wholeWord_ = nullptr;
    QCheckBox* expression_ = nullptr;
    QLabel* told_;
};

} // namespace lexiform::qt
