#include "tools/train/evaluation/LemmaEvaluation.h"

#include "linguistics/lemmas/LemmaCache.h"

#include <algorithm>
#include <vector>

namespace lexiform::train {

namespace {

using namespace linguistics;

std::vector<TaggedWord> tagged(const GoldSentence& sentence, SequenceTagger* tagger) {
    std::vector<TaggedWord> words;
    std::vector<std::string_view> forms;
    for (const GoldToken& token : sentence.tokens) {
        words.push_back({token.form, token.pos.value_or(UniversalPos::X)});
        forms.push_back(token.form);
    }
    if (tagger == nullptr) return words;
    std::vector<WordLabels> labels(words.size());
    tagger->tag(forms, labels);
    for (std::size_t i = 0; i < words.size(); ++i)
        words[i].pos = labels[i].pos;
    return words;
}

bool isRight(const GoldToken& token, std::string_view lemma) {
    const auto& further = token.furtherLemmas;
    return *token.lemma == lemma || std::find(further.begin(), further.end(), lemma) != further.end();
}

} // namespace

LemmaFigures evaluateLemmas(const LemmaModel& model, SequenceTagger* tagger, const Corpus& gold,
                            const LemmaFaultVisitor& faults) {
    LemmaFigures figures;
    LemmaCache cache(model);
    for (const GoldSentence& sentence : gold) {
        const std::vector<TaggedWord> words = tagged(sentence, tagger);
        std::vector<std::string_view> lemmas(words.size());
        cache.startParagraph();
        cache.lemmatize(words, lemmas);
        for (std::size_t at = 0; at < words.size(); ++at) {
            if (!sentence.tokens[at].lemma) continue;
            const bool right = isRight(sentence.tokens[at], lemmas[at]);
            figures.words += 1;
            figures.right += right ? 1 : 0;
            if (!right && faults) faults({words[at], *sentence.tokens[at].lemma, lemmas[at]});
        }
    }
    return figures;
}

} // namespace lexiform::train
