#pragma once

#include "analysis/tagger/Tagger.h"
#include "linguistics/Engine.h"
#include "platform/linguistics/TaggedWords.h"

#include <memory>
#include <optional>
#include <span>
#include <string>

namespace lexiform {

/// A tagger over the linguistic engine. It tags under all four schemes; a language or a script that
/// the text does not tell, and a lemma that the engine does not give, are no tag. Units other than
/// words have a tag under the script and language schemes alone.
///
/// A tagger made for several schemes analyses its text, or the range of it that it was asked for last, once
/// for all of them. The language of short paragraphs is told from the whole text, whatever the range.
class LinguisticTagger : public Tagger {
public:
    /// A tagger of texts that stand by themselves, or, given a context, of parts of one.
    LinguisticTagger(std::shared_ptr<const linguistics::Engine> engine, std::span<const TagScheme> schemes,
                     std::optional<linguistics::TextContext> context = std::nullopt);

    void setString(std::string text) override;
    void enumerateTags(TextRange range, NLTokenUnit unit, TagScheme scheme, NLTaggerOptions options,
                       const Visitor& visitor) override;

private:
    [[nodiscard]] const linguistics::TextContext& context();
    void enumerateKept(TextRange range, TagScheme scheme, const Visitor& visitor);

    std::shared_ptr<const linguistics::Engine> engine_;
    std::optional<linguistics::TextContext> given_;
    linguistics::Depth depth_; ///< as far as its schemes need
    bool keepsAnalysis_;
    std::string text_;
    std::optional<linguistics::TextContext> own_; ///< of the text, once it was needed
    TextRange kept_;                              ///< what `words_` are the words of
    std::optional<TaggedWords> words_;
};

/// Makes linguistic taggers that share `engine`; null for a list with a scheme that is not one of
/// the four. Given a context, their texts are parts of one.
[[nodiscard]] TaggerFactory linguisticTaggers(std::shared_ptr<const linguistics::Engine> engine,
                                              std::optional<linguistics::TextContext> context = std::nullopt);

} // namespace lexiform
