#include "linguistics/language/WordEvidence.h"

#include <algorithm>
#include <array>
#include <limits>

namespace lexiform::linguistics {

namespace {

// All of these were chosen on development texts of the corpora and on texts of other languages.
constexpr std::int32_t expectedBonus = 3 * unitsPerNat;
// A text in a language that the model knows well leaves the others behind at every letter; one in a
// language that it hardly knows is a close race, however long.
constexpr std::int32_t certainMargin = 12 * unitsPerNat;
constexpr std::int32_t certainPerLetter = 5;

/// What the detector's answer is worth: so much, and so much more for each letter.
struct Worth {
    std::int32_t once = 0;
    std::int32_t perLetter = 0;
};

constexpr Worth doubtful{2 * unitsPerNat, 2};
constexpr Worth forWellKnown{4 * unitsPerNat, 0};
constexpr Worth forNeighbour{8 * unitsPerNat, 3};
constexpr Worth forOthers{8 * unitsPerNat, 6};
constexpr std::int32_t closeRacePerLetter = 1;

// The detector is sure of rare languages where it sees a name or a heading. Among text in another language
// they need so many letters.
constexpr std::uint32_t fewestLettersForOthers = 20;

// The detector often takes Bokmål, Indonesian, Dutch, Portuguese and Spanish for these.
constexpr std::array<std::string_view, 4> neighbours = {"nn", "ms", "af", "gl"};

Worth worthOf(quadgrams::Answer answer, bool wellKnown) {
    if (!answer.reliable) return wellKnown ? Worth{} : doubtful;
    if (wellKnown) return forWellKnown;
    const bool neighbour =
        std::find(neighbours.begin(), neighbours.end(), answer.language) != neighbours.end();
    return neighbour ? forNeighbour : forOthers;
}

} // namespace

WordEvidence::WordEvidence(const NgramModel& model, const LetterText& text, Writing writing,
                           std::string_view expected)
    : model_(model), text_(text), writing_(writing), scores_(model.scoresOf(text.words())) {
    const auto language = find(expected);
    if (!language) return;
    scores_[*language] += expectedBonus;
    isShort_ = text.letters() < fewestLettersForOthers;
}

WordEvidence::Verdict WordEvidence::verdict() {
    const Best own = best();
    return isCertain(own) ? verdictOn(own) : joinedWith(quadgrams::languageOf(text_.utf8()), own);
}

std::optional<WordEvidence::Verdict> WordEvidence::certainVerdict() const {
    const Best own = best();
    return isCertain(own) ? std::optional(verdictOn(own)) : std::nullopt;
}

std::optional<std::size_t> WordEvidence::find(std::string_view code) const {
    for (std::size_t i = 0; i < model_.languages().size(); ++i)
        if (model_.codeOf(i) == code && (model_.languages()[i].writings & setOf(writing_)) != 0) return i;
    return std::nullopt;
}

WordEvidence::Best WordEvidence::best() const {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min() / 2;
    std::int32_t first = least;
    std::int32_t second = least;
    Best best;
    for (std::size_t i = 0; i < model_.languages().size(); ++i) {
        if ((model_.languages()[i].writings & setOf(writing_)) == 0) continue;
        if (scores_[i] > first) {
            second = first;
            first = scores_[i];
            best.language = i;
        } else if (scores_[i] > second) {
            second = scores_[i];
        }
    }
    best.margin = second == least ? 0 : first - second;
    return best;
}

bool WordEvidence::isCertain(Best best) const {
    return model_.languages()[best.language].thorough != 0 && best.margin >= certainMargin &&
           best.margin >= perLetter(certainPerLetter);
}

WordEvidence::Verdict WordEvidence::verdictOn(Best best) const {
    // Where not one feature is known, the margin is nothing and so is the guess.
    if (best.margin == 0) return {};
    return {model_.codeOf(best.language), best.margin};
}

WordEvidence::Verdict WordEvidence::joinedWith(quadgrams::Answer answer, Best own) {
    if (answer.language.empty()) return verdictOn(own);
    const auto language = find(answer.language);
    const bool wellKnown = language && model_.languages()[*language].thorough != 0;
    if (isShort_ && !wellKnown) return verdictOn(own);
    const Worth worth = worthOf(answer, wellKnown);
    const std::int32_t bonus = worth.once + perLetter(worth.perLetter);
    if (language) {
        scores_[*language] += bonus;
        return verdictOn(best());
    }
    // Of a language that the model has never seen the race alone tells.
    if (!answer.reliable || own.margin >= perLetter(closeRacePerLetter)) return verdictOn(own);
    return {answer.language, bonus - own.margin};
}

std::int32_t WordEvidence::perLetter(std::int32_t units) const {
    return units * static_cast<std::int32_t>(text_.letters());
}

} // namespace lexiform::linguistics
