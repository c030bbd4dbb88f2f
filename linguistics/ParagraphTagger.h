#pragma once

#include "linguistics/Analysis.h"
#include "linguistics/LanguageGuess.h"
#include "linguistics/Model.h"

#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// Gives the tokens of a paragraph language, part of speech and names by a model. Not for several
/// threads at once.
class ParagraphTagger {
public:
    /// A tagger by `model`, which must outlive it and whatever it tags.
    explicit ParagraphTagger(const Model& model);

    /// Completes the tokens of one paragraph, which have their kinds, scripts, sentence starts and the
    /// parts of speech that their characters tell; their ranges count from the start of `text`. Words
    /// in another script than the model's are left as they are, and so is a paragraph that is plainly
    /// in another language.
    void tag(std::string_view text, std::span<Token> tokens);

private:
    [[nodiscard]] LanguageGuess::Answer guess(std::string_view text, std::span<const Token> tokens);
    void tagSentences(std::string_view text, std::span<Token> tokens);
    void tagSentence();

    const Model& model_;
    std::unique_ptr<SequenceTagger> tagger_;
    // The words of the sentence at hand.
    std::vector<std::string_view> words_;
    std::vector<Token*> wordTokens_;
    std::vector<WordLabels> labels_;
};

} // namespace lexiform::linguistics
