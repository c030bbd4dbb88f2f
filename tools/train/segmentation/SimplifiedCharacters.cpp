#include "tools/train/segmentation/SimplifiedCharacters.h"

#include "base/fatalError.h"

#include <unicode/translit.h>
#include <unicode/unistr.h>

#include <memory>

namespace lexiform::train {

Corpus inSimplifiedCharacters(Corpus corpus) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Transliterator> simplify(
        icu::Transliterator::createInstance("Traditional-Simplified", UTRANS_FORWARD, status));
    if (U_FAILURE(status)) fatalError("ICU has no table of simplified characters");
    for (GoldSentence& sentence : corpus)
        for (GoldToken& token : sentence.tokens) {
            icu::UnicodeString form = icu::UnicodeString::fromUTF8(token.form);
            simplify->transliterate(form);
            token.form.clear();
            form.toUTF8String(token.form);
        }
    return corpus;
}

} // namespace lexiform::train
