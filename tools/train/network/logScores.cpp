#include "tools/train/network/logScores.h"

#include "base/fatalError.h"
#include "linguistics/network/NetworkTagger.h"
#include "tools/train/network/NetworkTrainer.h"

#include <iomanip>
#include <ostream>

namespace lexiform::train {

using namespace linguistics;

namespace {

void put(std::ostream& log, const std::string& name, Scores scores, const char* how) {
    log << "  " << name << how << ": pos " << std::fixed << std::setprecision(2) << scores.pos << ", names "
        << scores.names << std::endl;
}

Network::Labels labelsBy(NetworkTagger& tagger, const Example& example, const FormTable& forms) {
    std::vector<std::string_view> words;
    for (const std::uint32_t form : example.forms)
        words.push_back(forms.forms()[form]);
    std::vector<WordLabels> labels(words.size());
    tagger.tag(words, labels);
    Network::Labels result;
    for (const WordLabels& label : labels) {
        result.pos.push_back(static_cast<std::uint8_t>(label.pos));
        result.names.push_back(static_cast<std::uint8_t>(label.name));
    }
    return result;
}

} // namespace

void logScores(const TrainingData& data, Network& network, std::span<const SeenForm> forms,
               std::ostream& log) {
    for (std::size_t i = 0; i < data.development.size(); ++i) {
        const auto label = [&](const Example& example) {
            const Example* one = &example;
            return network.best({&one, 1}, forms).front();
        };
        put(log, data.developmentNames[i], scoresOf(data.development[i], label), "");
    }
}

void logScores(const TrainingData& data, const ModelFileWriter& file, std::ostream& log) {
    const std::vector<std::byte> bytes = file.bytes();
    const auto sections = ModelFile::over(bytes);
    if (!sections.succeeded()) fatalError(sections.fault());
    const auto model = NetworkModel::over(sections.value());
    if (!model.succeeded()) fatalError(model.fault());
    NetworkTagger tagger(model.value());
    for (std::size_t i = 0; i < data.development.size(); ++i) {
        const auto label = [&](const Example& example) {
            return labelsBy(tagger, example, data.tables.forms);
        };
        put(log, data.developmentNames[i], scoresOf(data.development[i], label), " in integers");
    }
}

} // namespace lexiform::train
