#pragma once

#include "linguistics/text/UniversalPos.h"
#include "tools/train/sources/rules/Place.h"

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::train {

/// A question about a word in its sentence. Conditions join to larger ones by &&, || and !.
class Condition {
public:
    using Question = std::function<bool(Place)>;

    explicit Condition(Question question) : holds_(std::move(question)) {}

    [[nodiscard]] bool operator()(Place place) const { return holds_(place); }

private:
    Question holds_;
};

[[nodiscard]] Condition operator&&(Condition a, Condition b);
[[nodiscard]] Condition operator||(Condition a, Condition b);
[[nodiscard]] Condition operator!(Condition a);

using Words = std::set<std::string, std::less<>>;
using Tags = std::vector<linguistics::UniversalPos>;

/// Words separated by single spaces.
[[nodiscard]] Words wordsOf(std::string_view list);

// What the word is. Lists are words separated by single spaces.

/// Its form, whatever its capitals, is one of `list`, which is in lower case.
[[nodiscard]] Condition form(std::string_view list);
/// Its form, with its capitals, is one of `list`.
[[nodiscard]] Condition exactForm(std::string_view list);
/// Its form, in lower case, ends in one of `list` and is longer than it.
[[nodiscard]] Condition formEndsIn(std::string_view list);
/// Its form, in lower case, begins with one of `list` and is longer than it.
[[nodiscard]] Condition formBeginsWith(std::string_view list);
/// Its lemma is one of `list`.
[[nodiscard]] Condition lemma(std::string_view list);
[[nodiscard]] Condition lemmaHolds(std::string_view part);
/// It has one of `tags`.
[[nodiscard]] Condition tagged(Tags tags);
/// Its morphological features hold `feature`, for example "VerbForm=Part".
[[nodiscard]] Condition feature(std::string_view feature);
/// It is a form that differs from its lemma, whatever the capitals.
[[nodiscard]] Condition inflected();
/// Its first letter is a capital.
[[nodiscard]] Condition capitalised();
[[nodiscard]] Condition outsideNames();
/// It is the first word of a name.
[[nodiscard]] Condition firstOfName();

// Where the word is.

[[nodiscard]] Condition firstInSentence();
/// The word before it, or after it, is such a one; false where there is none.
[[nodiscard]] Condition before(Condition previous);
[[nodiscard]] Condition after(Condition next);
/// One of the `reach` words after it is `wanted`, and none up to it `stop`s the search.
[[nodiscard]] Condition followedWithin(std::size_t reach, Condition wanted, Condition stop);
[[nodiscard]] Condition followedWithin(std::size_t reach, Condition wanted);
/// The same backwards.
[[nodiscard]] Condition precededWithin(std::size_t reach, Condition wanted, Condition stop);
[[nodiscard]] Condition precededWithin(std::size_t reach, Condition wanted);

/// Always, and never.
[[nodiscard]] Condition always();
[[nodiscard]] Condition never();

} // namespace lexiform::train
