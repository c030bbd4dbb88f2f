#pragma once

#include "base/Outcome.h"
#include "linguistics/file/ModelFile.h"
#include "linguistics/network/NetworkFormat.h"
#include "linguistics/network/WordRows.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace lexiform::linguistics {

/// A recurrent tagger in a model file's bytes, which must outlive it: for each word a sum of rows, a
/// bidirectional quasi-recurrent layer over it (Bradbury et al. 2017, "Quasi-recurrent neural networks"), and
/// on that the scores of parts of speech and name labels, with transitions between them. Immutable.
class NetworkModel {
public:
    using RowSum = std::array<std::int16_t, networkWidth>;

    /// The model in the sections of `file`, once every count and value in them has been checked; else what is
    /// wrong with them, in plain English.
    [[nodiscard]] static Outcome<NetworkModel, std::string> over(const ModelFile& file);

    /// What the lexicon knows of the word whose normal form has this hash; an empty entry if nothing.
    [[nodiscard]] NetworkEntry find(std::uint64_t normalHash) const;

    /// The sum of rows that stands for `word`, and for what is before and after a sentence.
    [[nodiscard]] RowSum sumOf(std::string_view word, NetworkEntry entry) const;
    [[nodiscard]] RowSum boundarySum() const;

    // For the kernels.
    [[nodiscard]] std::uint32_t gateShift() const { return gateShift_; }
    [[nodiscard]] std::uint32_t scoreShift() const { return scoreShift_; }
    [[nodiscard]] const std::int16_t* gateWeights() const { return gateWeights_.data(); }
    [[nodiscard]] const std::int16_t* gateBias() const { return gateBias_.data(); }
    [[nodiscard]] const std::int16_t* scoreWeights() const { return scoreWeights_.data(); }
    [[nodiscard]] const std::int16_t* scoreBias() const { return scoreBias_.data(); }

    /// What it adds to the score of a part of speech that `previous` comes before it; `previous` may be
    /// `universalPosCount`, the start of the sentence.
    [[nodiscard]] std::int16_t posTransition(std::size_t previous, std::size_t next) const {
        return posTransitions_[previous * universalPosCount + next];
    }
    /// The same for name labels.
    [[nodiscard]] std::int16_t nameTransition(std::size_t previous, std::size_t next) const {
        return nameTransitions_[previous * nameLabelCount + next];
    }

private:
    NetworkModel() = default;

    [[nodiscard]] std::string setDimensions(std::span<const NetworkDimensions> dimensions);
    [[nodiscard]] std::string faultInLexicon() const;
    [[nodiscard]] std::string faultInSizes(std::span<const std::int8_t> gateWeights,
                                           std::span<const std::int16_t> gateBias,
                                           std::span<const std::int8_t> scoreWeights) const;
    [[nodiscard]] std::string faultInValues(std::span<const std::int16_t> gateBias) const;
    [[nodiscard]] RowSum sumOf(const WordRows& rows) const;

    RowLayout layout_;
    std::uint32_t gateShift_ = 0, scoreShift_ = 0;
    std::span<const std::uint32_t> keys_;
    std::span<const NetworkEntry> entries_;
    std::span<const std::uint8_t> rows_;
    std::vector<std::int16_t> gateWeights_;  ///< as the kernels read them
    std::vector<std::int16_t> gateBias_;     ///< for each place in the window; only a word's own has one
    std::vector<std::int16_t> scoreWeights_; ///< as the kernels read them
    std::span<const std::int16_t> scoreBias_;
    std::span<const std::int16_t> posTransitions_;
    std::span<const std::int16_t> nameTransitions_;
};

} // namespace lexiform::linguistics
