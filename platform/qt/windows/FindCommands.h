#pragma once

#include "platform/qt/panes/SearchedText.h"
#include "platform/qt/windows/FindBar.h"
#include "platform/qt/windows/PaneFocus.h"

#include <QAction>
#include <QObject>

#include <memory>
#include <vector>

namespace lexiform::qt {

/// Finds in the pane that a person works in: opens the find bar, selects one place after the other, goes
/// on from the other end of the text, and tells how many places there are.
///
/// The places of a text are found once and kept until the text, the pane or the query is another.
class FindCommands : public QObject {
    Q_OBJECT

public:
    /// `bar` and `focus` must outlive the commands.
    FindCommands(FindBar& bar, PaneFocus& focus, QObject* parent);

    [[nodiscard]] QAction* find() const { return find_; }
    [[nodiscard]] QAction* findNext() const { return findNext_; }
    [[nodiscard]] QAction* findPrevious() const { return findPrevious_; }

    /// Finds the next place of a whole word in `pane`, in any of its forms and whatever its case. The
    /// keyboard stays where it is.
    void findWord(const QStringList& forms, PaneTextEdit* pane);

private:
    QAction* addCommand(const QString& title, const QList<QKeySequence>& keys,
                        void (FindCommands::*command)());
    void openBar();
    void closeBar();
    void goToNext();
    void goToPrevious();
    void searchAsTyped();
    void followPane();
    void forgetText();
    void forgetMatches();
    /// False when the query cannot be searched for, which the bar then tells, or when nothing is there.
    [[nodiscard]] bool search();
    /// The first match at or after a position of the document, else the first of all.
    void selectFirstFrom(int position);
    void select(std::size_t match, const QString& remark = {});
    [[nodiscard]] QString suggestion() const;

    FindBar& bar_;
    PaneFocus& focus_;
    QAction* find_;
    QAction* findNext_;
    QAction* findPrevious_;
    QMetaObject::Connection edits_;
    std::unique_ptr<SearchedText> text_;
    std::vector<TextMatch> matches_;
    bool searched_ = false;
};

} // namespace lexiform::qt
