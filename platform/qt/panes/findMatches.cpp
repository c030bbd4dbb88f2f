#include "platform/qt/panes/findMatches.h"

#include <QRegularExpression>
#include <QStringMatcher>

namespace lexiform::qt {

namespace {

using Matches = std::vector<TextMatch>;

// Every kind of line end counts as one.
const QString lineEndsOfAllKinds = QStringLiteral("(*ANYCRLF)");

bool isOfWord(char32_t character) {
    return QChar::isLetterOrNumber(character) || QChar::isMark(character) || character == U'_';
}

bool isOfWordBefore(const QString& text, qsizetype at) {
    if (at == 0) return false;
    const QChar unit = text[at - 1];
    if (unit.isLowSurrogate() && at > 1) return isOfWord(QChar::surrogateToUcs4(text[at - 2], unit));
    return isOfWord(unit.unicode());
}

bool isOfWordAt(const QString& text, qsizetype at) {
    if (at == text.size()) return false;
    const QChar unit = text[at];
    if (unit.isHighSurrogate() && at + 1 < text.size())
        return isOfWord(QChar::surrogateToUcs4(unit, text[at + 1]));
    return isOfWord(unit.unicode());
}

bool isWholeWord(const QString& text, const TextMatch& match) {
    return !isOfWordBefore(text, match.start) && !isOfWordAt(text, match.end);
}

Matches findLiterally(const QString& text, const FindQuery& query) {
    const QStringMatcher matcher(query.wanted, query.matchesCase ? Qt::CaseSensitive : Qt::CaseInsensitive);
    Matches matches;
    for (qsizetype at = matcher.indexIn(text); at >= 0 && matches.size() < mostMatches;) {
        const TextMatch match{at, at + query.wanted.size()};
        const bool counts = !query.wholeWord || isWholeWord(text, match);
        if (counts) matches.push_back(match);
        at = matcher.indexIn(text, counts ? match.end : at + 1);
    }
    return matches;
}

QRegularExpression expressionOf(const FindQuery& query) {
    QRegularExpression::PatternOptions options =
        QRegularExpression::MultilineOption | QRegularExpression::UseUnicodePropertiesOption;
    if (!query.matchesCase) options |= QRegularExpression::CaseInsensitiveOption;
    return QRegularExpression(lineEndsOfAllKinds + query.wanted, options);
}

Matches findByExpression(const QString& text, const QRegularExpression& expression, bool wholeWord) {
    // Looking at the whole text again for each match would take a minute for a book.
    const auto checked = text.isValidUtf16() ? QRegularExpression::DontCheckSubjectStringMatchOption
                                             : QRegularExpression::NoMatchOption;
    Matches matches;
    auto found = expression.globalMatch(text, 0, QRegularExpression::NormalMatch, checked);
    while (found.hasNext() && matches.size() < mostMatches) {
        const QRegularExpressionMatch each = found.next();
        const TextMatch match{each.capturedStart(), each.capturedEnd()};
        if (match.start < match.end && (!wholeWord || isWholeWord(text, match))) matches.push_back(match);
    }
    return matches;
}

} // namespace

Outcome<Matches, BadExpression> findMatches(const QString& text, const FindQuery& query) {
    if (query.wanted.isEmpty()) return Matches();
    if (!query.isRegularExpression) return findLiterally(text, query);
    const QRegularExpression expression = expressionOf(query);
    if (!expression.isValid())
        return BadExpression{expression.errorString(),
                             expression.patternErrorOffset() - lineEndsOfAllKinds.size()};
    return findByExpression(text, expression, query.wholeWord);
}

} // namespace lexiform::qt
