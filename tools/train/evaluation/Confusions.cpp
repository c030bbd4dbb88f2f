#include "tools/train/evaluation/Confusions.h"

#include "base/Unicode.h"
#include "tools/train/evaluation/LemmaEvaluation.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace lexiform::train {

namespace {

using namespace linguistics;

using Counts = std::map<std::tuple<std::string, UniversalPos, UniversalPos>, std::size_t>;

Counts countedOf(const SequenceModel& model, const Corpus& gold) {
    Counts counts;
    const auto tagger = model.tagger();
    for (const GoldSentence& sentence : gold) {
        std::vector<std::string_view> forms;
        for (const GoldToken& token : sentence.tokens)
            forms.push_back(token.form);
        std::vector<WordLabels> labels(forms.size());
        tagger->tag(forms, labels);
        for (std::size_t i = 0; i < forms.size(); ++i) {
            const auto pos = sentence.tokens[i].pos;
            if (pos && *pos != labels[i].pos) ++counts[{lowerCased(forms[i]), *pos, labels[i].pos}];
        }
    }
    return counts;
}

template <typename One>
std::vector<One> commonestOf(std::vector<One> all, std::size_t most) {
    std::stable_sort(all.begin(), all.end(), [](const One& a, const One& b) { return a.count > b.count; });
    all.resize(std::min(most, all.size()));
    return all;
}

} // namespace

std::vector<Confusion> confusionsOf(const SequenceModel& model, const Corpus& gold, std::size_t most) {
    std::vector<Confusion> confusions;
    for (const auto& [key, count] : countedOf(model, gold))
        confusions.push_back({count, std::get<0>(key), std::get<1>(key), std::get<2>(key)});
    return commonestOf(std::move(confusions), most);
}

std::vector<LemmaConfusion> lemmaConfusionsOf(const SequenceModel& model, const LemmaModel& lemmas,
                                              const Corpus& gold, std::size_t most) {
    std::map<std::tuple<std::string, std::string, std::string, UniversalPos>, std::size_t> counts;
    const auto tagger = model.tagger();
    (void)evaluateLemmas(lemmas, tagger.get(), gold, [&](const LemmaFault& fault) {
        ++counts[{std::string(fault.word.form), fault.gold, std::string(fault.lemma), fault.word.pos}];
    });
    std::vector<LemmaConfusion> confusions;
    for (const auto& [key, count] : counts) {
        const auto& [form, right, wrong, pos] = key;
        confusions.push_back({count, form, right, wrong, pos});
    }
    return commonestOf(std::move(confusions), most);
}

} // namespace lexiform::train
