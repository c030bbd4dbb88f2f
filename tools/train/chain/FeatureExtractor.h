#pragma once

#include "linguistics/tagging/Features.h"
#include "linguistics/tagging/LinearTagger.h"
#include "tools/train/corpora/Corpus.h"
#include "tools/train/lexicon/LexiconBuilder.h"

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace lexiform::train {

/// The features of the words of sentences, as the engine will see them.
class FeatureExtractor {
public:
    /// `lexicon` must outlive the extractor.
    explicit FeatureExtractor(const Lexicon& lexicon);

    using Take = std::function<void(std::size_t word, std::uint64_t feature)>;

    /// Tells `take` the features of every word of `sentence`.
    void extract(const GoldSentence& sentence, const Take& take);

    [[nodiscard]] const linguistics::WordTraits& traitsOf(const std::string& word);

private:
    const Lexicon& lexicon_;
    linguistics::WordTraits boundary_;
    std::unordered_map<std::string, linguistics::WordTraits> known_;
};

} // namespace lexiform::train
