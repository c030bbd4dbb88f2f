#include "tools/train/chain/trainChain.h"

#include "linguistics/tagging/LinearTagger.h"
#include "tools/train/chain/ChainTrainer.h"
#include "tools/train/chain/FeatureExtractor.h"
#include "tools/train/chain/FeatureTable.h"
#include "tools/train/chain/ModelWriter.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace lexiform::train {

namespace {

using namespace linguistics;

// A feature seen less often is not worth its place in the file.
constexpr std::uint32_t leastCount = 2;

constexpr ChainOptions posOptions{
    .epochs = 6, .rate = 0.15F, .shrinkage = 0.002F, .dropout = 0.35F, .seed = 1};
constexpr ChainOptions nameOptions{
    .epochs = 8, .rate = 0.15F, .shrinkage = 0.002F, .dropout = 0.4F, .seed = 2};

// More weights than these are no help.
constexpr std::size_t mostPosWeights = 330000;
constexpr std::size_t mostNameWeights = 150000;
// Of the weights that the file has room for, so many of a hundred are for names.
constexpr std::size_t percentForNames = 31;

// The corpora of names miss some that should be marked, so the model finds too few; this much less for a
// word outside names makes up for it, chosen on the development parts.
constexpr float outsidePenalty = 0.5F;

// Weights are stored as multiples of one over this.
constexpr float scale = 24;

using PosOfWords = std::vector<UniversalPos>;

/// How many weights each half of the model may have in the file.
struct Room {
    std::size_t pos = mostPosWeights, names = mostNameWeights;
};

Room roomIn(std::size_t mostBytes, const ModelWriter& writer, bool named) {
    const std::size_t used = std::min(mostBytes, writer.bytesWithoutWeights());
    const std::size_t weights = (mostBytes - used) / sizeof(WeightRecord);
    const std::size_t names = named ? std::min(mostNameWeights, weights * percentForNames / 100) : 0;
    return {std::min(mostPosWeights, weights - names), names};
}

/// Sentences turned into numbers.
struct Data {
    FeatureTable table;
    std::vector<ChainSentence> sentences;
};

/// The sources that teach one thing, and how much each sentence of them counts.
using Weight = float Source::*;

template <typename Visit>
void eachSentence(const std::vector<Source>& sources, Weight weight, Visit visit) {
    std::size_t number = 0;
    for (const Source& source : sources)
        if (source.*weight > 0)
            for (const GoldSentence& sentence : source.corpus)
                visit(sentence, source.*weight, number++);
}

template <typename LabelOf>
ChainSentence numbered(const GoldSentence& sentence, float weight, const PosOfWords* pos,
                       FeatureExtractor& extractor, const FeatureTable& table, LabelOf labelOf,
                       bool byAmbiguity) {
    ChainSentence chain;
    chain.weight = weight;
    extractor.extract(sentence, pos, [&](std::size_t word, std::uint64_t feature, bool) {
        chain.ends.resize(word + 1, static_cast<std::uint32_t>(chain.features.size()));
        const std::uint32_t number = table.find(feature);
        if (number != FeatureTable::none) chain.features.push_back(number);
        chain.ends[word] = static_cast<std::uint32_t>(chain.features.size());
    });
    for (const GoldToken& token : sentence.tokens) {
        chain.labels.push_back(labelOf(token));
        chain.transitions.push_back(byAmbiguity ? extractor.traitsOf(token.form).entry.ambiguity : 0);
    }
    return chain;
}

template <typename LabelOf>
Data dataOf(const std::vector<Source>& sources, Weight sourceWeight, const std::vector<PosOfWords>* pos,
            FeatureExtractor& extractor, LabelOf labelOf, bool byAmbiguity) {
    Data data;
    const auto posOf = [&](std::size_t number) { return pos ? &(*pos)[number] : nullptr; };
    eachSentence(sources, sourceWeight, [&](const GoldSentence& sentence, float, std::size_t number) {
        extractor.extract(sentence, posOf(number),
                          [&](std::size_t, std::uint64_t feature, bool) { data.table.count(feature); });
    });
    data.table.number(leastCount);
    eachSentence(sources, sourceWeight, [&](const GoldSentence& sentence, float weight, std::size_t number) {
        data.sentences.push_back(
            numbered(sentence, weight, posOf(number), extractor, data.table, labelOf, byAmbiguity));
    });
    return data;
}

std::vector<std::int16_t> posTransitionsOf(const ChainTrainer<universalPosCount>& trainer) {
    std::vector<std::int16_t> values;
    for (const auto& rows : trainer.transitions())
        for (const auto& row : rows) {
            for (const float value : row)
                values.push_back(
                    static_cast<std::int16_t>(ModelWriter::rounded(value * scale, largestTransition)));
            values.resize(values.size() + scoreCount - universalPosCount);
        }
    return values;
}

std::vector<std::int16_t> nameTransitionsOf(const ChainTrainer<nameLabelCount>& trainer) {
    std::vector<std::int16_t> values;
    const auto& rows = trainer.transitions().front();
    for (std::size_t previous = 0; previous < nameLabelCount; ++previous)
        for (std::size_t label = 0; label < nameLabelCount; ++label) {
            const float value = rows[previous][label] - (label == 0 ? outsidePenalty : 0);
            values.push_back(
                static_cast<std::int16_t>(ModelWriter::rounded(value * scale, largestTransition)));
        }
    return values;
}

bool anyPosMayFollow(std::size_t, std::size_t) {
    return false;
}

bool nameMayNotFollow(std::size_t previous, std::size_t next) {
    const std::size_t before = previous == nameLabelCount ? 0 : previous;
    return !mayFollow(static_cast<NameLabel>(before), static_cast<NameLabel>(next));
}

void trainPos(const LanguageSources& sources, std::size_t most, FeatureExtractor& extractor,
              ModelWriter& writer, std::ostream& log) {
    Data data = dataOf(
        sources.training, &Source::tagWeight, nullptr, extractor,
        [](const GoldToken& token) { return static_cast<std::uint8_t>(*token.pos); }, true);
    log << "parts of speech: " << data.sentences.size() << " sentences, " << data.table.features().size()
        << " features\n";
    ChainTrainer<universalPosCount> trainer(data.table.features().size(), LexiconBuilder::classCount(),
                                            anyPosMayFollow);
    trainer.train(data.sentences, posOptions, [&](int epoch) { log << "epoch " << epoch + 1 << std::endl; });
    writer.addWeights<universalPosCount>(data.table, trainer.weights(), 0, scale, most);
    writer.setPosTransitions(posTransitionsOf(trainer));
    writer.setNameTransitions(std::vector<std::int16_t>(nameLabelCount * nameLabelCount, 0));
}

// The parts of speech that the engine will see, which are not always the right ones.
std::vector<PosOfWords> posBy(const LinearModel& model, const std::vector<Source>& sources) {
    LinearTagger tagger(model);
    std::vector<PosOfWords> all;
    eachSentence(sources, &Source::nameWeight, [&](const GoldSentence& sentence, float, std::size_t) {
        std::vector<std::string_view> words;
        for (const GoldToken& token : sentence.tokens)
            words.push_back(token.form);
        std::vector<WordLabels> labels(words.size());
        tagger.tag(words, labels);
        PosOfWords pos;
        for (const WordLabels& label : labels)
            pos.push_back(label.pos);
        all.push_back(std::move(pos));
    });
    return all;
}

std::vector<PosOfWords> posBy(const ModelWriter& writer, const std::vector<Source>& sources) {
    ModelFileWriter image("und");
    writer.appendTo(image);
    const std::vector<std::byte> bytes = image.bytes();
    const auto file = ModelFile::over(bytes);
    if (!file.succeeded()) fatalError(file.fault());
    const auto model = LinearModel::over(file.value());
    if (!model.succeeded()) fatalError(model.fault());
    return posBy(model.value(), sources);
}

void trainNames(const LanguageSources& sources, const std::vector<PosOfWords>& pos, std::size_t most,
                FeatureExtractor& extractor, ModelWriter& writer, std::ostream& log) {
    Data data = dataOf(
        sources.training, &Source::nameWeight, &pos, extractor,
        [](const GoldToken& token) { return static_cast<std::uint8_t>(token.name); }, false);
    log << "names: " << data.sentences.size() << " sentences, " << data.table.features().size()
        << " features\n";
    ChainTrainer<nameLabelCount> trainer(data.table.features().size(), 1, nameMayNotFollow);
    trainer.train(data.sentences, nameOptions, [&](int epoch) { log << "epoch " << epoch + 1 << std::endl; });
    writer.addWeights<nameLabelCount>(data.table, trainer.weights(), universalPosCount, scale, most);
    writer.setNameTransitions(nameTransitionsOf(trainer));
}

} // namespace

void trainChain(const LanguageSources& sources, const Lexicon& lexicon, std::size_t mostBytes,
                ModelFileWriter& file, std::ostream& log) {
    FeatureExtractor extractor(lexicon);
    ModelWriter writer;
    writer.setLexicon(lexicon);
    log << "lexicon: " << lexicon.size() << " words\n";
    const bool named = std::any_of(sources.training.begin(), sources.training.end(),
                                   [](const Source& source) { return source.nameWeight > 0; });
    const Room room = roomIn(mostBytes, writer, named);
    trainPos(sources, room.pos, extractor, writer, log);
    if (named) trainNames(sources, posBy(writer, sources.training), room.names, extractor, writer, log);
    writer.appendTo(file);
}

} // namespace lexiform::train
