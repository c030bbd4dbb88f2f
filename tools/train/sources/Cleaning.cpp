#include "tools/train/sources/Cleaning.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace lexiform::train {

namespace {

// Sentences of fewer words say the same by chance.
constexpr std::size_t shortest = 5;

// In UTF-8: the replacement character, the byte order mark, zero-width space, the directional marks.
constexpr std::array<std::string_view, 5> unwanted = {"\xEF\xBF\xBD", "\xEF\xBB\xBF", "\xE2\x80\x8B",
                                                      "\xE2\x80\x8E", "\xE2\x80\x8F"};

bool isSound(const GoldToken& token) {
    return !token.form.empty() && std::none_of(unwanted.begin(), unwanted.end(), [&](std::string_view one) {
        return token.form.find(one) != std::string::npos;
    });
}

void trim(std::string& form) {
    const auto first = form.find_first_not_of(" \t\r");
    const auto last = form.find_last_not_of(" \t\r");
    form = first == std::string::npos ? std::string() : form.substr(first, last - first + 1);
}

std::string keyOf(const GoldSentence& sentence) {
    std::string key;
    for (const GoldToken& token : sentence.tokens)
        key += token.form + '\n';
    return key;
}

} // namespace

void clean(Corpus& corpus, bool wholly) {
    for (GoldSentence& sentence : corpus)
        for (GoldToken& token : sentence.tokens)
            trim(token.form);
    std::erase_if(corpus, [&](const GoldSentence& sentence) {
        return !std::all_of(sentence.tokens.begin(), sentence.tokens.end(),
                            [&](const GoldToken& token) { return isSound(token) && (!wholly || token.pos); });
    });
}

bool SentenceMemory::knows(const GoldSentence& sentence) const {
    return sentence.tokens.size() >= shortest && sentences_.count(keyOf(sentence)) != 0;
}

bool SentenceMemory::remember(const GoldSentence& sentence) {
    return sentence.tokens.size() < shortest || sentences_.insert(keyOf(sentence)).second;
}

} // namespace lexiform::train
