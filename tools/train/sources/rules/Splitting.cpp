#include "tools/train/sources/rules/Splitting.h"

#include "base/Unicode.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace lexiform::train {

namespace {

// What is shorter is seldom the word that it looks like.
constexpr std::size_t shortestRest = 3;

using Cut = std::function<std::optional<GoldToken>(GoldToken& word)>;

void cutWords(Corpus& corpus, const Cut& cut) {
    for (GoldSentence& sentence : corpus) {
        std::vector<GoldToken> tokens;
        for (GoldToken& token : sentence.tokens) {
            std::optional<GoldToken> rest = cut(token);
            tokens.push_back(std::move(token));
            if (rest) tokens.push_back(std::move(*rest));
        }
        sentence.tokens = std::move(tokens);
    }
}

Words wordsIn(const Corpus& corpus) {
    Words words;
    for (const GoldSentence& sentence : corpus)
        for (const GoldToken& token : sentence.tokens)
            words.insert(lowerCased(token.form));
    return words;
}

// Takes the last `size` bytes off `word`, as a token with none of its annotation.
GoldToken takenOff(GoldToken& word, std::size_t size) {
    GoldToken rest;
    rest.form = word.form.substr(word.form.size() - size);
    rest.spaceAfter = word.spaceAfter;
    word.form.resize(word.form.size() - size);
    word.spaceAfter = false;
    return rest;
}

} // namespace

Preparation withEndingApart(std::string_view ending, linguistics::UniversalPos own, Tags tags) {
    return [ending = std::string(ending), own, tags = std::move(tags)](Corpus& corpus) {
        const Words known = wordsIn(corpus);
        cutWords(corpus, [&](GoldToken& word) -> std::optional<GoldToken> {
            const std::string lowered = lowerCased(word.form);
            const bool fits = word.pos && std::find(tags.begin(), tags.end(), *word.pos) != tags.end();
            const bool longEnough = word.form.size() >= ending.size() + shortestRest;
            if (!fits || !longEnough || !word.form.ends_with(ending)) return std::nullopt;
            if (known.count(lowered.substr(0, lowered.size() - ending.size())) == 0) return std::nullopt;
            GoldToken rest = takenOff(word, ending.size());
            rest.pos = own;
            rest.lemma = ending;
            return rest;
        });
    };
}

Preparation withPunctuationApart() {
    return [](Corpus& corpus) {
        cutWords(corpus, [](GoldToken& word) -> std::optional<GoldToken> {
            constexpr std::string_view marks = ",.;:";
            if (word.form.size() < 3 || marks.find(word.form.back()) == std::string_view::npos)
                return std::nullopt;
            return takenOff(word, 1);
        });
    };
}

} // namespace lexiform::train
