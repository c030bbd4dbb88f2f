#pragma once

#include "analysis/tagger/Tagger.h"
#include "linguistics/Engine.h"

#include <memory>
#include <string>

namespace lexiform {

/// A tagger over the linguistic engine. It tags under all four schemes; a language or a script that
/// the text does not tell, and a lemma that the engine does not give, are no tag. Units other than
/// words have a tag under the script and language schemes alone.
class LinguisticTagger : public Tagger {
public:
    explicit LinguisticTagger(std::shared_ptr<const linguistics::Engine> engine);

    void setString(std::string text) override;
    void enumerateTags(TextRange range, NLTokenUnit unit, TagScheme scheme, NLTaggerOptions options,
                       const Visitor& visitor) override;

private:
    std::shared_ptr<const linguistics::Engine> engine_;
    std::string text_;
};

/// Makes linguistic taggers that share `engine`; null for a list with a scheme that is not one of
/// the four.
[[nodiscard]] TaggerFactory linguisticTaggers(std::shared_ptr<const linguistics::Engine> engine);

} // namespace lexiform
