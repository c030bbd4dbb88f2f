#pragma once

#include "tools/train/chain/FeatureTable.h"
#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/lexicon/LexiconBuilder.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace lexiform::train {

/// Gathers what a linear model consists of and writes its sections.
class ModelWriter {
public:
    void setLexicon(const Lexicon& lexicon);

    /// Adds the weights of one label set; its first label is number `firstLabel` in the file. Weights are
    /// rounded to 1/`scale`. Of those left, the `most` that matter most are kept: a weight matters by its
    /// size and by how often its feature occurs.
    template <std::size_t L>
    void addWeights(const FeatureTable& table, std::span<const std::array<float, L>> rows,
                    std::size_t firstLabel, float scale, std::size_t most) {
        std::vector<Weight> weights;
        for (std::size_t i = 0; i < rows.size(); ++i)
            for (std::size_t label = 0; label < L; ++label)
                if (const int value = rounded(rows[i][label] * scale, 127); value != 0)
                    weights.push_back({table.features()[i], static_cast<std::uint8_t>(firstLabel + label),
                                       static_cast<std::int8_t>(value),
                                       importance(value, table.counts()[i])});
        keepMostImportant(weights, most);
    }

    void setPosTransitions(std::vector<std::int16_t> transitions) {
        posTransitions_ = std::move(transitions);
    }
    void setNameTransitions(std::vector<std::int16_t> transitions) {
        nameTransitions_ = std::move(transitions);
    }

    /// What the sections take besides the weights, once the lexicon is set.
    [[nodiscard]] std::size_t bytesWithoutWeights() const;

    void appendTo(ModelFileWriter& file) const;

    /// `value` as the nearest integer, no further from zero than `limit`.
    [[nodiscard]] static int rounded(float value, int limit);

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
    std::vector<std::int16_t> nameTransitions_;
};

} // namespace lexiform::train
