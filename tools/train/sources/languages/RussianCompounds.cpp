#include "tools/train/sources/languages/RussianCompounds.h"

#include "base/Unicode.h"
#include "linguistics/text/AsciiText.h"
#include "linguistics/text/Characters.h"
#include "linguistics/text/Utf8.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace lexiform::train {

namespace {

using namespace std::string_view_literals;
using linguistics::UniversalPos;

constexpr std::array particles = {"ка"sv, "либо"sv, "нибудь"sv, "таки"sv, "то"sv};
constexpr std::array beginnings = {"вице"sv, "во"sv,      "гран"sv,  "из"sv, "мини"sv,
                                   "по"sv,   "премьер"sv, "санкт"sv, "экс"sv};

bool isCapital(const std::string& form) {
    return linguistics::isUpperCase(linguistics::codePointAt(form, 0).value);
}

bool isNumber(const std::string& form) {
    return linguistics::isAsciiDigit(form.front());
}

bool isWord(const std::string& form) {
    return !isNumber(form) && form.find_first_of(".,()\"'-") == std::string::npos;
}

// Whether the two belong to one word, not to a name or to a number of a thing.
bool isCompound(const GoldToken& first, const GoldToken& second) {
    if (!isWord(second.form)) return false;
    if (isNumber(first.form)) return !isCapital(second.form);
    if (!isWord(first.form)) return false;
    const std::string lowered = lowerCased(first.form);
    if (linguistics::holds(beginnings, lowered)) return true;
    if (isCapital(first.form)) return lowered.ends_with("о") && second.pos == UniversalPos::ADJ;
    return !isCapital(second.form);
}

UniversalPos posOf(const GoldToken& first, const GoldToken& second) {
    const std::string lowered = lowerCased(first.form);
    if (lowered == "из") return UniversalPos::ADP;
    if (lowered == "по" || lowered == "во") return UniversalPos::ADV;
    return *second.pos;
}

std::string lemmaOf(const GoldToken& first, const GoldToken& second) {
    return isNumber(first.form) ? first.form + "-й" : first.form + "-" + second.lemma.value_or(second.form);
}

GoldToken joined(const GoldToken& first, const GoldToken& second) {
    const bool particle = linguistics::holds(particles, second.form);
    GoldToken token = particle ? first : second;
    token.form = first.form + "-" + second.form;
    token.spaceAfter = second.spaceAfter;
    if (particle)
        token.lemma = first.lemma.value_or(first.form) + "-" + second.form;
    else {
        token.lemma = lemmaOf(first, second);
        token.pos = posOf(first, second);
    }
    return token;
}

void join(GoldSentence& sentence) {
    std::vector<GoldToken> tokens;
    for (std::size_t i = 0; i < sentence.tokens.size(); ++i) {
        const bool hyphen = sentence.tokens[i].form == "-" && !tokens.empty();
        if (!hyphen || i + 1 == sentence.tokens.size()) {
            tokens.push_back(sentence.tokens[i]);
        } else if (isCompound(tokens.back(), sentence.tokens[i + 1])) {
            tokens.back() = joined(tokens.back(), sentence.tokens[++i]);
        } else {
            tokens.back().spaceAfter = false;
            tokens.push_back(sentence.tokens[i]);
            tokens.back().spaceAfter = false;
        }
    }
    sentence.tokens = std::move(tokens);
}

} // namespace

Preparation russianCompounds() {
    return [](Corpus& corpus) {
        for (GoldSentence& sentence : corpus)
            join(sentence);
    };
}

} // namespace lexiform::train
