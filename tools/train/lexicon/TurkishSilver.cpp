#include "tools/train/lexicon/TurkishSilver.h"

#include "linguistics/tagging/WordTraits.h"
#include "linguistics/text/Characters.h"
#include "linguistics/text/Utf8.h"

#include <algorithm>
#include <array>

namespace lexiform::train {

namespace {

using enum linguistics::UniversalPos;
using linguistics::UniversalPos;

bool isOpenClass(UniversalPos pos) {
    constexpr std::array open = {ADJ, ADV, NOUN, VERB, X};
    return std::find(open.begin(), open.end(), pos) != open.end();
}

bool isCapitalised(const std::string& form) {
    return linguistics::isUpperCase(linguistics::codePointAt(form, 0).value);
}

UniversalPos corrected(UniversalPos pos, const std::string& classes) {
    const bool verbOnly = classes.find_first_not_of("fgp") == std::string::npos;
    const bool noVerb = classes.find_first_of("fgpv") == std::string::npos;
    if (verbOnly) return VERB;
    if (pos == VERB && noVerb) return NOUN;
    return pos == NOUN && classes == "j" ? ADJ : pos;
}

} // namespace

void correctTurkishTags(const TurkishForms& forms, Corpus& tagged) {
    for (GoldSentence& sentence : tagged)
        for (GoldToken& token : sentence.tokens) {
            if (!token.pos || !isOpenClass(*token.pos)) continue;
            if (token.name != linguistics::NameLabel::outside) {
                if (isCapitalised(token.form)) token.pos = PROPN;
                continue;
            }
            const std::string classes = forms.classesOf(linguistics::normalForm(token.form));
            if (!classes.empty()) token.pos = corrected(*token.pos, classes);
        }
}

} // namespace lexiform::train
