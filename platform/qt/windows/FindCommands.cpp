#include "platform/qt/windows/FindCommands.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace lexiform::qt {

namespace {

QString number(std::size_t value) {
    return QLocale().toString(static_cast<qulonglong>(value));
}

// One form is shown to the person as it is.
FindQuery queryFor(const QStringList& forms) {
    if (forms.size() == 1) return {.wanted = forms.front(), .wholeWord = true};
    QStringList escaped;
    for (const QString& form : forms)
        escaped.append(QRegularExpression::escape(form));
    return {.wanted = escaped.join(u'|'), .wholeWord = true, .isRegularExpression = true};
}

} // namespace

FindCommands::FindCommands(FindBar& bar, PaneFocus& focus, QObject* parent)
    : QObject(parent), bar_(bar), focus_(focus),
      find_(addCommand(tr("&Find…"), {QKeySequence(QKeySequence::Find)}, &FindCommands::openBar)),
      findNext_(addCommand(tr("Find &Next"), {QKeySequence(Qt::Key_F3), QKeySequence(Qt::CTRL | Qt::Key_G)},
                           &FindCommands::goToNext)),
      findPrevious_(
          addCommand(tr("Find Pre&vious"),
                     {QKeySequence(Qt::SHIFT | Qt::Key_F3), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_G)},
                     &FindCommands::goToPrevious)) {
    connect(&bar_, &FindBar::queryChanged, this, &FindCommands::searchAsTyped);
    connect(&bar_, &FindBar::nextRequested, this, &FindCommands::goToNext);
    connect(&bar_, &FindBar::previousRequested, this, &FindCommands::goToPrevious);
    connect(&bar_, &FindBar::dismissed, this, &FindCommands::closeBar);
    connect(&focus_, &PaneFocus::changed, this, &FindCommands::followPane);
    followPane();
}

QAction* FindCommands::addCommand(const QString& title, const QList<QKeySequence>& keys,
                                  void (FindCommands::*command)()) {
    auto* action = new QAction(title, this);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, command);
    return action;
}

void FindCommands::openBar() {
    if (!focus_.pane()) return;
    bar_.open(focus_.pane()->accessibleName(), suggestion());
    searchAsTyped();
}

void FindCommands::findWord(const QStringList& forms, PaneTextEdit* pane) {
    focus_.turnTo(pane);
    bar_.setQuery(queryFor(forms));
    forgetMatches();
    bar_.show();
    goToNext();
}

// What is selected in one line is likely to be what is looked for.
QString FindCommands::suggestion() const {
    const QString selected = focus_.pane()->textCursor().selectedText();
    return selected.contains(QChar::ParagraphSeparator) ? QString() : selected;
}

void FindCommands::closeBar() {
    text_.reset();
    forgetMatches();
    if (focus_.pane()) focus_.pane()->setFocus();
}

void FindCommands::followPane() {
    disconnect(edits_);
    forgetText();
    if (!focus_.pane()) return;
    bar_.setPane(focus_.pane()->accessibleName());
    edits_ = connect(focus_.pane(), &QPlainTextEdit::textChanged, this, &FindCommands::forgetText);
}

void FindCommands::forgetText() {
    text_.reset();
    forgetMatches();
    bar_.tell({});
}

void FindCommands::forgetMatches() {
    matches_.clear();
    searched_ = false;
}

// The first place at or after the beginning of what is selected: what is typed on stays where it is.
void FindCommands::searchAsTyped() {
    forgetMatches();
    if (!search()) return;
    selectFirstFrom(focus_.pane()->textCursor().selectionStart());
}

void FindCommands::goToNext() {
    if (!bar_.hasQuery()) return openBar();
    if (!search()) return;
    selectFirstFrom(focus_.pane()->textCursor().selectionEnd());
}

void FindCommands::selectFirstFrom(int position) {
    const auto found = std::ranges::lower_bound(matches_, text_->offsetOf(position), {}, &TextMatch::start);
    if (found == matches_.end())
        select(0, tr("from the top"));
    else
        select(static_cast<std::size_t>(found - matches_.begin()));
}

void FindCommands::goToPrevious() {
    if (!bar_.hasQuery()) return openBar();
    if (!search()) return;
    const qsizetype from = text_->offsetOf(focus_.pane()->textCursor().selectionStart());
    const auto after = std::ranges::upper_bound(matches_, from, {}, &TextMatch::end);
    if (after == matches_.begin())
        select(matches_.size() - 1, tr("from the end"));
    else
        select(static_cast<std::size_t>(after - matches_.begin()) - 1);
}

bool FindCommands::search() {
    PaneTextEdit* pane = focus_.pane();
    if (!pane) return false;
    if (!text_) text_ = std::make_unique<SearchedText>(*pane->document(), pane->ownLineEnd());
    if (!searched_) {
        auto outcome = findMatches(text_->text(), bar_.query());
        if (!outcome.succeeded()) {
            bar_.tell(tr("Not a regular expression: %1, at character %2")
                          .arg(outcome.fault().reason)
                          .arg(outcome.fault().offset + 1));
            return false;
        }
        matches_ = std::move(outcome).value();
        searched_ = true;
    }
    if (matches_.empty()) bar_.tell(bar_.hasQuery() ? tr("Not found") : QString());
    return !matches_.empty();
}

void FindCommands::select(std::size_t match, const QString& remark) {
    PaneTextEdit* pane = focus_.pane();
    QTextCursor cursor = pane->textCursor();
    cursor.setPosition(text_->positionOf(matches_[match].start));
    cursor.setPosition(text_->positionOf(matches_[match].end), QTextCursor::KeepAnchor);
    pane->setTextCursor(cursor);
    const QString all = matches_.size() < mostMatches ? number(matches_.size())
                                                      : tr("more than %1").arg(number(mostMatches - 1));
    const QString place = tr("%1 of %2").arg(number(match + 1), all);
    bar_.show();
    bar_.tell(remark.isEmpty() ? place : tr("%1, %2").arg(place, remark));
}

} // namespace lexiform::qt
