#include "linguistics/lemmas/LemmaRule.h"

#include <unicode/utf8.h>

#include <array>

namespace lexiform::linguistics {

namespace {

/// Spells a lemma in UTF-8, character by character, with its capitals.
class Speller {
public:
    Speller(LemmaCasing casing, CaseRules rules) : casing_(casing), rules_(rules) {}

    void put(char32_t original, char32_t lower) {
        std::array<char, U8_MAX_LENGTH> bytes{};
        std::int32_t length = 0;
        const auto value = static_cast<UChar32>(cased(original, lower));
        U8_APPEND_UNSAFE(bytes.data(), length, value);
        lemma_.append(bytes.data(), static_cast<std::size_t>(length));
    }
    void put(const std::u32string& text) {
        for (const char32_t value : text)
            put(value, value);
    }
    [[nodiscard]] std::string lemma() && { return std::move(lemma_); }

private:
    [[nodiscard]] char32_t cased(char32_t original, char32_t lower) const {
        switch (casing_) {
        case LemmaCasing::kept:
            return original;
        case LemmaCasing::capitalised:
            return lemma_.empty() ? upperCase(lower, rules_) : lower;
        case LemmaCasing::upper:
            return upperCase(lower, rules_);
        default:
            return lower;
        }
    }

    LemmaCasing casing_;
    CaseRules rules_;
    std::string lemma_;
};

} // namespace

std::string lemmaBy(const LemmaRule& rule, LemmaCasing casing, const FoldedWord& word, CaseRules rules) {
    Speller speller(casing, rules);
    if (!rule.whole) {
        for (std::size_t i = 0; i < rule.prefixKept; ++i)
            speller.put(word.original(i), word.lower(i));
        speller.put(rule.inserted);
        for (std::size_t i = rule.prefixKept + rule.prefixDropped; i + rule.suffixDropped < word.size(); ++i)
            speller.put(word.original(i), word.lower(i));
    }
    speller.put(rule.ending);
    return std::move(speller).lemma();
}

} // namespace lexiform::linguistics
