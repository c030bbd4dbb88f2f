#include "tools/train/silver/TurkishSilver.h"

#include "linguistics/tagging/WordTraits.h"
#include "linguistics/text/Characters.h"
#include "linguistics/text/Utf8.h"
#include "tools/train/lexicon/readTurkishForms.h"
#include "tools/train/segmentation/UsualSpacing.h"
#include "tools/train/silver/ChainLabeller.h"
#include "tools/train/silver/TurkishSplitting.h"
#include "tools/train/silver/readText.h"

#include <algorithm>
#include <array>
#include <iterator>
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

// Of each open text.
constexpr std::size_t mostSilverBytes = 2'500'000;

// Text of other languages and of programs teaches nothing: most words must be in the dictionary.
bool isOrdinary(const TurkishForms& forms, const GoldSentence& sentence) {
    std::size_t known = 0, words = 0;
    for (const GoldToken& token : sentence.tokens) {
        const char32_t first = linguistics::codePointAt(token.form, 0).value;
        if (!linguistics::isLowerCase(first) && !linguistics::isUpperCase(first)) continue;
        ++words;
        known += forms.classesOf(linguistics::normalForm(token.form)).empty() ? 0 : 1;
    }
    return words >= 3 && known * 5 >= words * 4;
}

Outcome<Source, std::string> silverText(const TurkishForms& forms, const std::filesystem::path& file) {
    auto text = readText(file, "tr", mostSilverBytes);
    if (!text.succeeded()) return text.fault();
    Source source{file.stem().string() + " (silver)", std::move(text).value()};
    std::erase_if(source.corpus, [&](const GoldSentence& sentence) { return !isOrdinary(forms, sentence); });
    return source;
}

bool hasNamesAlone(const Source& source) {
    return source.nameWeight > 0 && source.tagWeight <= 0;
}

bool isVerbOnly(const std::string& classes) {
    return !classes.empty() && classes.find_first_not_of("fgp") == std::string::npos;
}

UniversalPos corrected(UniversalPos pos, const std::string& classes) {
    const bool noVerb = classes.find_first_of("fgpv") == std::string::npos;
    if (isVerbOnly(classes)) return VERB;
    if (classes == "u") return NUM;
    if (pos == VERB && noVerb) return NOUN;
    return pos == NOUN && classes == "j" ? ADJ : pos;
}

} // namespace

TurkishCorrector::TurkishCorrector(const TurkishForms& forms, const std::vector<Source>& sources)
    : forms_(forms) {
    for (const Source& source : sources)
        for (const GoldSentence& sentence : source.corpus)
            for (const GoldToken& token : sentence.tokens)
                if (token.pos == NOUN && token.lemma && isDeverbal(*token.lemma))
                    deverbalNouns_.insert(*token.lemma);
}

// A word such as "yemek" that the dictionary explains as a verbal noun; the lemma of others is the verb's
// stem.
bool TurkishCorrector::isDeverbal(const std::string& lemma) const {
    const std::string classes = forms_.classesOf(linguistics::normalForm(lemma));
    return isVerbOnly(classes) && classes.find('p') != std::string::npos;
}

bool TurkishCorrector::isFormOfDeverbalNoun(const std::string& form) const {
    const auto after = deverbalNouns_.upper_bound(form);
    return after != deverbalNouns_.begin() && form.starts_with(*std::prev(after));
}

void TurkishCorrector::correct(Corpus& tagged) const {
    for (GoldSentence& sentence : tagged)
        for (GoldToken& token : sentence.tokens) {
            if (!token.pos || !isOpenClass(*token.pos)) continue;
            if (token.name != linguistics::NameLabel::outside) {
                if (isCapitalised(token.form)) token.pos = PROPN;
                continue;
            }
            const std::string form = linguistics::normalForm(token.form);
            if (token.pos == NOUN && isFormOfDeverbalNoun(form)) continue;
            const std::string classes = forms_.classesOf(form);
            if (!classes.empty()) token.pos = corrected(*token.pos, classes);
        }
}

std::optional<std::string> addTurkishSilver(LanguageSources& sources, const Lexicon& lexicon,
                                            const std::filesystem::path& corpora, std::ostream& log) {
    TurkishForms forms;
    if (ReadFault fault = readTurkishForms(corpora / "tr" / "lexicon", forms)) return fault;
    const TurkishCorrector corrector(forms, sources.training);
    for (Source& source : sources.training)
        if (!hasNamesAlone(source)) corrector.correct(source.corpus);
    const ChainLabeller labeller(sources, lexicon, log);
    const auto tag = [&](Source& source) {
        splitTurkishWords(forms, source.corpus);
        labeller.label(source.corpus);
        corrector.correct(source.corpus);
        source.tagWeight = silverWeight;
        source.hasSpacing = true;
        source.hasSentences = false;
    };
    for (Source& source : sources.training) {
        if (!hasNamesAlone(source)) continue;
        source.corpus = withUsualSpacing(std::move(source.corpus));
        tag(source);
    }
    for (const std::filesystem::path& file : sources.openTexts) {
        auto source = silverText(forms, file);
        if (!source.succeeded()) return source.fault();
        sources.training.push_back(std::move(source).value());
        tag(sources.training.back());
    }
    return std::nullopt;
}

} // namespace lexiform::train
