#include "tools/train/evaluation/Confusions.h"

#include "base/Unicode.h"

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

} // namespace

std::vector<Confusion> confusionsOf(const SequenceModel& model, const Corpus& gold, std::size_t most) {
    std::vector<Confusion> confusions;
    for (const auto& [key, count] : countedOf(model, gold))
        confusions.push_back({count, std::get<0>(key), std::get<1>(key), std::get<2>(key)});
    std::stable_sort(confusions.begin(), confusions.end(),
                     [](const Confusion& a, const Confusion& b) { return a.count > b.count; });
    confusions.resize(std::min(most, confusions.size()));
    return confusions;
}

} // namespace lexiform::train
