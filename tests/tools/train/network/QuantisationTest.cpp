#include "linguistics/network/NetworkTagger.h"
#include "tools/train/network/NetworkTrainer.h"
#include "tools/train/network/NetworkWriter.h"

#include <gtest/gtest.h>

#include <sstream>

namespace lexiform::train {
namespace {

using namespace linguistics;

// Random numbers at first, so scores lie closer together than those of a trained network.
TEST(Quantisation, keepsNearlyAllLabels) {
    FormTable forms;
    for (int i = 0; i < 300; ++i)
        static_cast<void>(forms.numberOf("word" + std::to_string(i * 37)));
    const std::vector<std::uint32_t> counts(forms.size(), 5);
    const FormCounts words(forms, counts, counts);
    const Vocabulary vocabulary(words, {}, 300);
    NetworkShape shape;
    shape.layout = RowLayout({static_cast<std::uint32_t>(vocabulary.rowCount()), 64, 4, listRowCount, 64, 64,
                              64, 64, 64, 64, 64, 64});
    Network network(shape, 11);
    for (float& value : network.rows().values().values())
        value *= 4;
    ModelFileWriter file("en");
    std::ostringstream log;
    appendNetwork(network, vocabulary, file, log);
    const std::vector<std::byte> bytes = file.bytes();
    const auto sections = ModelFile::over(bytes);
    const auto model = NetworkModel::over(sections.value());
    ASSERT_TRUE(model.succeeded());
    NetworkTagger tagger(model.value());

    const std::vector<SeenForm> seen = vocabulary.seen(forms, words, shape.layout);
    std::size_t same = 0, all = 0;
    for (std::uint32_t start = 0; start + 12 <= forms.size(); start += 12) {
        Example example;
        std::vector<std::string_view> sentence;
        for (std::uint32_t form = start; form < start + 12; ++form) {
            example.forms.push_back(form);
            sentence.push_back(forms.forms()[form]);
        }
        const Example* one = &example;
        const Network::Labels exact = network.best({&one, 1}, seen).front();
        std::vector<WordLabels> labels(sentence.size());
        tagger.tag(sentence, labels);
        for (std::size_t i = 0; i < labels.size(); ++i, ++all)
            same += static_cast<std::uint8_t>(labels[i].pos) == exact.pos[i];
    }
    EXPECT_GT(static_cast<double>(same), 0.9 * static_cast<double>(all));
}

} // namespace
} // namespace lexiform::train
