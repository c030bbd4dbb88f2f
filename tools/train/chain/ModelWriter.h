#pragma once

#include "tools/train/chain/ChainWeights.h"
#include "tools/train/chain/FeatureTable.h"
#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/lexicon/LexiconBuilder.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lexiform::train {

/// Gathers what a linear model consists of and writes its sections.
class ModelWriter {
public:
    void setLexicon(const Lexicon& lexicon);

    /// Adds the weights of the features in `table`, rounded to 1/`scale`. Of those left, the `most` that
    /// matter most are kept: a weight matters by its size and by how often its feature occurs.
    void addWeights(const FeatureTable& table, const ChainWeights& chain, float scale, std::size_t most);
    /// The same for the transitions.
    void addTransitions(const ChainWeights& chain, float scale);

    /// What the sections take besides the weights, once the lexicon is set.
    [[nodiscard]] std::size_t bytesWithoutWeights() const;

    void appendTo(ModelFileWriter& file) const;

private:
    struct Weight {
        std::uint64_t feature = 0;
        std::uint8_t label = 0;
        std::int8_t value = 0;
        std::uint64_t importance = 0;
    };

    [[nodiscard]] static std::uint64_t importance(int value, std::uint32_t count);
    void keepMostImportant(std::vector<Weight>& weights, std::size_t most);

    std::vector<std::uint32_t> keys_;
    std::vector<linguistics::LexiconEntry> entries_;
    std::vector<Weight> weights_;
    std::vector<std::int16_t> posTransitions_;
};

} // namespace lexiform::train
