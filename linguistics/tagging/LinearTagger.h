#pragma once

#include "linguistics/tagging/ChainDecoder.h"
#include "linguistics/tagging/LinearModel.h"
#include "linguistics/tagging/SequenceModel.h"
#include "linguistics/tagging/WordCache.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// Labels sentences with a linear-chain model (Lafferty, McCallum and Pereira 2001, "Conditional random
/// fields"): the best sequence of parts of speech; it finds no names. Integers throughout, so that every
/// processor gives the same labels.
class LinearTagger : public SequenceTagger {
public:
    /// A tagger over `model`, which must outlive it.
    explicit LinearTagger(const LinearModel& model);

    void tag(std::span<const std::string_view> words, std::span<WordLabels> labels) override;
    [[nodiscard]] LexiconEntry entryOf(std::string_view word) override;

private:
    using PosDecoder = ChainDecoder<universalPosCount, scoreCount>;

    void lookUp(std::span<const std::string_view> words);
    void scoreWords();
    [[nodiscard]] Context contextAt(std::size_t word) const;
    void tagPartsOfSpeech(std::span<WordLabels> labels);

    const LinearModel& model_;
    WordCache cache_;
    PosDecoder posDecoder_;
    // Of the sentence at hand; kept between sentences for their memory only.
    std::vector<std::uint32_t> indices_; ///< of the words, with boundaries on both sides
    SentenceTraits sentence_;
    std::vector<std::array<std::int16_t, scoreCount>> scores_;
    std::vector<std::uint8_t> best_;
};

/// Whether a sentence's capitals tell names from other words: not so in headings and shouting.
[[nodiscard]] SentenceTraits sentenceTraitsOf(std::span<const Casing> casings);

} // namespace lexiform::linguistics
