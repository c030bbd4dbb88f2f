#pragma once

#include "base/Outcome.h"

#include <QString>

#include <vector>

namespace lexiform::qt {

/// What is looked for, and how.
struct FindQuery {
    QString wanted;
    bool matchesCase = false;
    bool wholeWord = false;
    bool isRegularExpression = false;

    bool operator==(const FindQuery&) const = default;
};

/// Where something was found, in UTF-16 units of the text; never empty.
struct TextMatch {
    qsizetype start;
    qsizetype end;

    bool operator==(const TextMatch&) const = default;
};

/// So many matches are found and no more: past it, none is of use to a reader.
constexpr std::size_t mostMatches = 1'000'000;

/// Why a regular expression is none: the reason in words and the character at which it fails, from 0.
struct BadExpression {
    QString reason;
    qsizetype offset;
};

/// Every place where the query is found, from the start on, none overlapping the one before; nothing
/// for an empty query. In a regular expression `^` and `$` stand for the ends of lines.
[[nodiscard]] Outcome<std::vector<TextMatch>, BadExpression> findMatches(const QString& text,
                                                                         const FindQuery& query);

} // namespace lexiform::qt
