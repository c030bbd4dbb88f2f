#include "tools/train/sources/rules/ChineseScript.h"

#include "base/fatalError.h"

#include <unicode/translit.h>
#include <unicode/unistr.h>

#include <array>
#include <memory>
#include <string_view>
#include <utility>

namespace lexiform::train {

namespace {

std::shared_ptr<icu::Transliterator> traditionalToSimplified() {
    UErrorCode status = U_ZERO_ERROR;
    std::shared_ptr<icu::Transliterator> transliterator(
        icu::Transliterator::createInstance("Traditional-Simplified", UTRANS_FORWARD, status));
    if (U_FAILURE(status) || !transliterator) fatalError("ICU lacks its Chinese transliteration");
    return transliterator;
}

std::string simplified(const icu::Transliterator& transliterator, const std::string& text) {
    icu::UnicodeString characters = icu::UnicodeString::fromUTF8(text);
    transliterator.transliterate(characters);
    std::string result;
    characters.toUTF8String(result);
    return result;
}

void widen(std::string& form) {
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 8> wide = {{{",", "，"},
                                                                                           {".", "。"},
                                                                                           {"(", "（"},
                                                                                           {")", "）"},
                                                                                           {":", "："},
                                                                                           {";", "；"},
                                                                                           {"?", "？"},
                                                                                           {"!", "！"}}};
    for (const auto& [narrow, full] : wide)
        if (form == narrow) {
            form = full;
            return;
        }
}

} // namespace

Preparation simplifiedCharacters() {
    return [transliterator = traditionalToSimplified()](Corpus& corpus) {
        for (GoldSentence& sentence : corpus)
            for (GoldToken& token : sentence.tokens) {
                token.form = simplified(*transliterator, token.form);
                if (token.lemma) token.lemma = simplified(*transliterator, *token.lemma);
            }
    };
}

Preparation fullWidthPunctuation() {
    return [](Corpus& corpus) {
        for (GoldSentence& sentence : corpus)
            for (GoldToken& token : sentence.tokens)
                if (!token.pos || token.pos == linguistics::UniversalPos::PUNCT) {
                    widen(token.form);
                    if (token.lemma) widen(*token.lemma);
                }
    };
}

} // namespace lexiform::train
