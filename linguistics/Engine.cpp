#include "linguistics/Engine.h"

#include "linguistics/ParagraphSplitter.h"
#include "linguistics/ParagraphTagger.h"
#include "linguistics/PlainTagger.h"
#include "linguistics/ScriptMarker.h"
#include "linguistics/SentenceMarker.h"
#include "linguistics/Tokeniser.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace lexiform::linguistics {

namespace {

// The one language that models exist for so far, and its script.
constexpr std::string_view modelLanguage = "en";
constexpr std::string_view modelScript = "Latn";

/// Analyses one text, paragraph after paragraph.
class Analysis {
public:
    Analysis(const ModelStore& models, std::string_view text) : models_(models), text_(text) {}

    const Paragraph& paragraphAt(std::size_t start) {
        std::vector<Token>& tokens = paragraph_.tokens;
        tokens.clear();
        paragraph_.range = linguistics::paragraphAt(text_, start);
        tokeniser_.tokenise(substring(text_, paragraph_.range), start, tokens);
        markSentences(text_, tokens);
        markScripts(text_, tokens);
        tagByCharacters(text_, tokens);
        if (std::any_of(tokens.begin(), tokens.end(),
                        [](const Token& token) { return token.script == modelScript; }))
            tagByModel();
        return paragraph_;
    }

private:
    void tagByModel() {
        if (!model_) {
            const auto loaded = models_.model(modelLanguage);
            // A language whose model is missing or damaged is one without a model: words stay X.
            model_ = loaded.succeeded() ? loaded.value() : nullptr;
            if (*model_) tagger_.emplace(**model_);
        }
        if (tagger_) tagger_->tag(text_, paragraph_.tokens);
    }

    const ModelStore& models_;
    std::string_view text_;
    Tokeniser tokeniser_;
    std::optional<std::shared_ptr<const Model>> model_; ///< nothing until it is first needed
    std::optional<ParagraphTagger> tagger_;
    Paragraph paragraph_;
};

} // namespace

Engine::Engine(std::shared_ptr<const ModelStore> models) : models_(std::move(models)) {}

void Engine::analyse(std::string_view text, const Visitor& visitor) const {
    Analysis analysis(*models_, text);
    for (std::size_t start = 0; start < text.size();) {
        const Paragraph& paragraph = analysis.paragraphAt(start);
        if (!visitor(paragraph)) return;
        start = paragraph.range.end();
    }
}

} // namespace lexiform::linguistics
