#pragma once

#include "base/Outcome.h"
#include "linguistics/file/ModelFile.h"
#include "linguistics/language/IdentificationFormat.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace lexiform::linguistics {

/// A log-linear model of which language words are in, over their sequences of characters. Its numbers
/// lie in the file's bytes, which must outlive it.
class NgramModel {
public:
    using Scores = std::array<std::int32_t, mostLanguages>;

    /// The model in `file`, or what is wrong with it, in plain English.
    [[nodiscard]] static Outcome<NgramModel, std::string> over(const ModelFile& file);

    [[nodiscard]] std::span<const LanguageRecord> languages() const { return languages_; }
    [[nodiscard]] std::string_view codeOf(std::size_t language) const {
        return languages_[language].code.data();
    }

    /// The logarithm of each language's odds, up to a constant that they share, in `unitsPerNat`; zero
    /// past the last language. `words` as in LetterText, of at most a few thousand characters.
    [[nodiscard]] Scores scoresOf(std::u16string_view words) const;

private:
    NgramModel() = default;
    [[nodiscard]] std::string faultInLanguages() const;
    [[nodiscard]] std::string faultInWeights() const;

    std::span<const LanguageRecord> languages_;
    std::span<const std::uint32_t> bucketStarts_;
    std::span<const NgramWeight> weights_;
};

} // namespace lexiform::linguistics
