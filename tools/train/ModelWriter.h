#pragma once

#include "linguistics/ModelFormat.h"
#include "tools/train/FeatureTable.h"
#include "tools/train/LexiconBuilder.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace lexiform::train {

/// Gathers what a model consists of and writes it in the format of docs/formats/model.md.
class ModelWriter {
public:
    explicit ModelWriter(std::string_view language) : language_(language) {}

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

    /// The whole file.
    [[nodiscard]] std::vector<std::byte> bytes() const;

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

    std::string_view language_;
    std::vector<std::uint32_t> keys_;
    std::vector<linguistics::LexiconEntry> entries_;
    std::vector<Weight> weights_;
    std::vector<std::int16_t> posTransitions_;
    std::vector<std::int16_t> nameTransitions_;
};

} // namespace lexiform::train
