#include "tools/train/chain/trainChain.h"

#include "linguistics/tagging/LinearFormat.h"
#include "tools/train/chain/ChainTrainer.h"
#include "tools/train/chain/FeatureExtractor.h"
#include "tools/train/chain/FeatureTable.h"
#include "tools/train/chain/ModelWriter.h"

#include <algorithm>

namespace lexiform::train {

namespace {

using namespace linguistics;

// A feature seen less often is not worth its place in the file.
constexpr std::uint32_t leastCount = 2;

constexpr ChainOptions chainOptions{
    .epochs = 6, .rate = 0.15F, .shrinkage = 0.002F, .dropout = 0.35F, .seed = 1};

// More weights than these are no help.
constexpr std::size_t mostWeights = 330000;

// Weights are stored as multiples of one over this.
constexpr float weightScale = 24;

/// Sentences turned into numbers.
struct Data {
    FeatureTable table;
    std::vector<ChainSentence> sentences;
};

template <typename Visit>
void eachTaggedSentence(const std::vector<Source>& sources, Visit visit) {
    for (const Source& source : sources)
        if (source.tagWeight > 0)
            for (const GoldSentence& sentence : source.corpus)
                visit(sentence, source.tagWeight);
}

ChainSentence numbered(const GoldSentence& sentence, float weight, FeatureExtractor& extractor,
                       const FeatureTable& table) {
    ChainSentence chain;
    chain.weight = weight;
    extractor.extract(sentence, [&](std::size_t word, std::uint64_t feature) {
        chain.ends.resize(word + 1, static_cast<std::uint32_t>(chain.features.size()));
        const std::uint32_t number = table.find(feature);
        if (number != FeatureTable::none) chain.features.push_back(number);
        chain.ends[word] = static_cast<std::uint32_t>(chain.features.size());
    });
    for (const GoldToken& token : sentence.tokens) {
        chain.labels.push_back(static_cast<std::uint8_t>(*token.pos));
        chain.transitions.push_back(extractor.traitsOf(token.form).entry.ambiguity);
    }
    return chain;
}

Data dataOf(const std::vector<Source>& sources, FeatureExtractor& extractor) {
    Data data;
    eachTaggedSentence(sources, [&](const GoldSentence& sentence, float) {
        extractor.extract(sentence, [&](std::size_t, std::uint64_t feature) { data.table.count(feature); });
    });
    data.table.number(leastCount);
    eachTaggedSentence(sources, [&](const GoldSentence& sentence, float weight) {
        data.sentences.push_back(numbered(sentence, weight, extractor, data.table));
    });
    return data;
}

std::size_t roomForWeights(std::size_t mostBytes, const ModelWriter& writer) {
    const std::size_t used = std::min(mostBytes, writer.bytesWithoutWeights());
    return std::min(mostWeights, (mostBytes - used) / sizeof(WeightRecord));
}

} // namespace

void trainChain(const LanguageSources& sources, const Lexicon& lexicon, std::size_t mostBytes,
                ModelFileWriter& file, std::ostream& log) {
    FeatureExtractor extractor(lexicon);
    ModelWriter writer;
    writer.setLexicon(lexicon);
    log << "lexicon: " << lexicon.size() << " words\n";
    const Data data = dataOf(sources.training, extractor);
    log << "parts of speech: " << data.sentences.size() << " sentences, " << data.table.features().size()
        << " features\n";
    ChainTrainer trainer(data.table.features().size(), LexiconBuilder::classCount());
    trainer.train(data.sentences, chainOptions,
                  [&](int epoch) { log << "epoch " << epoch + 1 << std::endl; });
    writer.addWeights(data.table, trainer.weights(), weightScale, roomForWeights(mostBytes, writer));
    writer.addTransitions(trainer.weights(), weightScale);
    writer.appendTo(file);
}

} // namespace lexiform::train
