#pragma once

#include "linguistics/lemmas/LemmaCache.h"
#include "linguistics/model/Model.h"
#include "linguistics/text/Analysis.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// Gives the tokens of sentences parts of speech, names and lemmas by the model of a language. Not for
/// several threads at once.
class SpanTagger {
public:
    explicit SpanTagger(std::shared_ptr<const Model> model);

    /// What has been learnt of cutting the language's text; null where nothing has.
    [[nodiscard]] const LearnedSegmentation* segmentation() const { return model_->segmentation(); }

    /// To be called before each paragraph: the lemmas given so far may go.
    void startParagraph();

    /// Completes the tokens of a sentence or of a part of one, which have their kinds, scripts and the
    /// parts of speech that their characters tell; their ranges count from the start of `text`. Tokens
    /// whose number in `owners`, which is as long, is not `owner` serve as context and keep what they
    /// have. Lemmas, which are given where `depth` says so, last until `startParagraph`.
    void tag(std::string_view text, std::span<Token> tokens, std::span<const std::uint32_t> owners,
             std::uint32_t owner, Depth depth);

private:
    void gatherWords(std::string_view text, std::span<Token> tokens, std::span<const std::uint32_t> owners,
                     std::uint32_t owner);
    void label();
    void markClassifiers();
    void lemmatize();

    std::shared_ptr<const Model> model_;
    std::unique_ptr<SequenceTagger> tagger_;
    std::optional<LemmaCache> lemmas_;
    // The words of the span at hand.
    std::vector<std::string_view> words_;
    std::vector<Token*> wordTokens_;
    std::vector<bool> isOwn_;
    std::vector<WordLabels> labels_;
    std::vector<TaggedWord> taggedWords_;
    std::vector<std::string_view> wordLemmas_;
};

} // namespace lexiform::linguistics
