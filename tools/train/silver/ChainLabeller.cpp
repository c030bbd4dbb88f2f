#include "tools/train/silver/ChainLabeller.h"

#include "linguistics/file/ModelFile.h"
#include "linguistics/tagging/LinearTagger.h"
#include "tools/train/chain/trainChain.h"

#include <limits>
#include <string_view>

namespace lexiform::train {

using namespace linguistics;

namespace {

std::vector<std::byte> chainBytes(const LanguageSources& sources, const Lexicon& lexicon, std::ostream& log) {
    ModelFileWriter image("und");
    trainChain(sources, lexicon, std::numeric_limits<std::size_t>::max(), image, log);
    return image.bytes();
}

LinearModel modelOver(const std::vector<std::byte>& bytes) {
    const auto file = ModelFile::over(bytes);
    if (!file.succeeded()) fatalError(file.fault());
    const auto model = LinearModel::over(file.value());
    if (!model.succeeded()) fatalError(model.fault());
    return model.value();
}

} // namespace

ChainLabeller::ChainLabeller(const LanguageSources& sources, const Lexicon& lexicon, std::ostream& log)
    : bytes_(chainBytes(sources, lexicon, log)), model_(modelOver(bytes_)) {}

void ChainLabeller::label(Corpus& corpus) const {
    LinearTagger tagger(model_);
    for (GoldSentence& sentence : corpus) {
        std::vector<std::string_view> words;
        for (const GoldToken& token : sentence.tokens)
            words.push_back(token.form);
        std::vector<WordLabels> labels(words.size());
        tagger.tag(words, labels);
        for (std::size_t i = 0; i < words.size(); ++i)
            sentence.tokens[i].pos = labels[i].pos;
    }
}

} // namespace lexiform::train
