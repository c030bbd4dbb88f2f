#include "tools/train/network/TrainingData.h"

#include <utility>

namespace lexiform::train {

namespace {

// A label of the corpora's own that is met less often is not worth learning.
constexpr std::size_t leastLabels = 15;
constexpr std::size_t mostFineLabels = 150;
constexpr std::size_t mostFeatureLabels = 150;
// Text of the kinds that were chosen for annotation is worth more than the novels.
constexpr std::uint32_t unannotatedWorth = 5;

void count(const OpenText& text, std::uint32_t worth, std::vector<std::uint32_t>& counts) {
    for (std::size_t i = 0; i < text.sentenceCount(); ++i)
        for (const std::uint32_t form : text.sentence(i))
            counts[form] += worth;
}

} // namespace

TrainingData::TrainingData(const LanguageSources& sources, std::size_t openBytes) {
    addLabels(sources);
    for (const Source& source : sources.training)
        addSource(source);
    for (const Source& source : sources.development) {
        std::vector<Example>& examples = development.emplace_back();
        developmentNames.push_back(source.name);
        for (const GoldSentence& sentence : source.corpus)
            for (Example& example : examplesOf(sentence, 1, 1, tables))
                examples.push_back(std::move(example));
    }
    for (const auto& file : sources.openTexts)
        if (auto wrong = open.emplace_back().add(file, sources.language, openBytes, tables.forms);
            wrong && !fault)
            fault = std::move(wrong);
}

void TrainingData::addLabels(const LanguageSources& sources) {
    for (const Source& source : sources.training) {
        if (source.tagWeight <= 0) continue;
        for (const GoldSentence& sentence : source.corpus)
            for (const GoldToken& token : sentence.tokens) {
                tables.fine.count(token.finePos);
                tables.features.count(token.features);
            }
    }
    tables.fine.number(leastLabels, mostFineLabels);
    tables.features.number(leastLabels, mostFeatureLabels);
}

void TrainingData::addSource(const Source& source) {
    const bool annotates = source.tagWeight > 0 || source.nameWeight > 0;
    for (const GoldSentence& sentence : source.corpus)
        for (Example& example : examplesOf(sentence, source.tagWeight, source.nameWeight, tables)) {
            if (annotates)
                annotated.push_back(std::move(example));
            else
                unannotated.add(example.forms);
        }
}

FormCounts TrainingData::counts() const {
    std::vector<std::uint32_t> known(tables.forms.size(), 0), others(tables.forms.size(), 0);
    for (const Example& example : annotated)
        for (const std::uint32_t form : example.forms)
            ++known[form];
    count(unannotated, unannotatedWorth, others);
    for (const OpenText& text : open)
        count(text, 1, others);
    return {tables.forms, known, others};
}

} // namespace lexiform::train
