#include "linguistics/Engine.h"

#include "linguistics/ParagraphSplitter.h"
#include "linguistics/PlainTagger.h"
#include "linguistics/ScriptMarker.h"
#include "linguistics/SentenceMarker.h"
#include "linguistics/Tokeniser.h"

#include <utility>

namespace lexiform::linguistics {

Engine::Engine(std::shared_ptr<const ModelStore> models) : models_(std::move(models)) {}

void Engine::analyse(std::string_view text, const Visitor& visitor) const {
    Tokeniser tokeniser;
    Paragraph paragraph;
    for (std::size_t start = 0; start < text.size(); start = paragraph.range.end()) {
        paragraph.range = paragraphAt(text, start);
        paragraph.tokens.clear();
        tokeniser.tokenise(substring(text, paragraph.range), start, paragraph.tokens);
        markSentences(text, paragraph.tokens);
        markScripts(text, paragraph.tokens);
        tagByCharacters(text, paragraph.tokens);
        if (!visitor(paragraph)) return;
    }
}

} // namespace lexiform::linguistics
