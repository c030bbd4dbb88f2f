#include "tools/train/silver/TurkishSilver.h"

#include "linguistics/tagging/WordTraits.h"
#include "linguistics/text/Characters.h"
#include "linguistics/text/Utf8.h"
#include "tools/train/lexicon/readTurkishForms.h"
#include "tools/train/segmentation/UsualSpacing.h"
#include "tools/train/silver/ChainLabeller.h"
#include "tools/train/silver/TurkishSplitting.h"

#include <algorithm>
#include <array>
#include <utility>

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

// Texts of the kind that the tagger will see, if by a weaker hand.
constexpr float silverWeight = 0.7F;

bool hasNamesAlone(const Source& source) {
    return source.nameWeight > 0 && source.tagWeight <= 0;
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

std::optional<std::string> addTurkishSilver(LanguageSources& sources, const Lexicon& lexicon,
                                            const std::filesystem::path& corpora, std::ostream& log) {
    TurkishForms forms;
    if (ReadFault fault = readTurkishForms(corpora / "tr" / "lexicon", forms)) return fault;
    const ChainLabeller labeller(sources, lexicon, log);
    for (Source& source : sources.training) {
        if (!hasNamesAlone(source)) continue;
        source.corpus = withUsualSpacing(std::move(source.corpus));
        splitTurkishWords(forms, source.corpus);
        labeller.label(source.corpus);
        correctTurkishTags(forms, source.corpus);
        source.tagWeight = silverWeight;
        source.hasSpacing = true;
        source.hasSentences = false;
    }
    return std::nullopt;
}

} // namespace lexiform::train
