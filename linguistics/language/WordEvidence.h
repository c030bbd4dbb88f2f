#pragma once

#include "linguistics/language/LetterText.h"
#include "linguistics/language/NgramModel.h"
#include "linguistics/language/QuadgramDetector.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace lexiform::linguistics {

/// What the words of one text say about its language, among those that share its writing.
class WordEvidence {
public:
    struct Verdict {
        std::string_view language{}; ///< BCP 47; empty where nothing tells
        std::int32_t margin = 0;     ///< before the next language, in `unitsPerNat`
    };

    /// Both outlive the evidence. `expected` is the language of the text around, or empty.
    WordEvidence(const NgramModel& model, const LetterText& text, Writing writing, std::string_view expected);

    /// The language where the model by itself leaves no doubt.
    [[nodiscard]] std::optional<Verdict> certainVerdict() const;

    /// The likeliest language; asks the quadgram detector where the model leaves a doubt.
    [[nodiscard]] Verdict verdict();

private:
    struct Best {
        std::size_t language = 0;
        std::int32_t margin = 0;
    };

    [[nodiscard]] Best best() const;
    [[nodiscard]] std::optional<std::size_t> find(std::string_view code) const;
    [[nodiscard]] bool isCertain(Best best) const;
    [[nodiscard]] Verdict verdictOn(Best best) const;
    [[nodiscard]] Verdict joinedWith(quadgrams::Answer answer, Best own);
    [[nodiscard]] std::int32_t perLetter(std::int32_t units) const;

    const NgramModel& model_;
    const LetterText& text_;
    Writing writing_;
    NgramModel::Scores scores_;
    bool isShort_ = false; ///< and text in another language is around it
};

} // namespace lexiform::linguistics
