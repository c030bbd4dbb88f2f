#include "linguistics/Analyser.h"

#include "linguistics/Engine.h"
#include "linguistics/LanguageMarker.h"
#include "linguistics/PlainTagger.h"
#include "linguistics/SpanTagger.h"
#include "linguistics/language/ScriptMarker.h"
#include "linguistics/segmentation/ParagraphSplitter.h"
#include "linguistics/segmentation/SentenceMarker.h"
#include "linguistics/segmentation/Tokeniser.h"

#include <map>
#include <vector>

namespace lexiform::linguistics {

namespace {

// A word, a number or a mark of a language without a model is its own dictionary form.
void giveOwnLemmas(std::string_view text, std::span<Token> tokens) {
    for (Token& token : tokens)
        if (!isBlank(token) && !token.lemma) token.lemma = substring(text, token.range);
}

} // namespace

class Analyser::Work {
public:
    explicit Work(const Engine& engine)
        : models_(engine.models()), languages_(engine.models().identifier(), engine.options().language) {}

    const Paragraph& paragraphAt(std::string_view text, std::size_t start, const TextContext& context,
                                 Depth depth) {
        std::vector<Token>& tokens = paragraph_.tokens;
        tokens.clear();
        paragraph_.range = linguistics::paragraphAt(text, start);
        const std::string_view own = substring(text, paragraph_.range);
        const ToldLanguage language = languages_.languageOf(own, context.mainLanguage);
        startTaggers();
        const SpanTagger* const tagger = taggerFor(language.language);
        const LearnedSegmentation* const learned = tagger != nullptr ? tagger->segmentation() : nullptr;
        tokeniser_.tokenise(own, start, language.language, learned, tokens);
        markSentences(text, tokens, learned);
        markScripts(text, tokens);
        tagByCharacters(text, tokens);
        languages_.mark(text, language, learned != nullptr ? learned->commonWords : WordSet(), tokens);
        if (depth >= Depth::classes) tagSpans(text, depth);
        if (depth >= Depth::lemmas) giveOwnLemmas(text, tokens);
        return paragraph_;
    }

private:
    void startTaggers() {
        for (auto& [language, tagger] : taggers_)
            if (tagger) tagger->startParagraph();
    }

    void tagSpans(std::string_view text, Depth depth) {
        const auto spans = languages_.spans();
        const auto owners = languages_.owners();
        for (std::uint32_t i = 0; i < spans.size(); ++i) {
            const LanguageSpan& span = spans[i];
            const std::size_t length = span.end - span.first;
            if (SpanTagger* const tagger = taggerFor(span.language))
                tagger->tag(text, std::span(paragraph_.tokens).subspan(span.first, length),
                            owners.subspan(span.first, length), i, depth);
        }
    }

    /// Null where the language has no model that can be used: its words stay X.
    SpanTagger* taggerFor(std::string_view language) {
        const auto known = taggers_.find(language);
        if (known != taggers_.end()) return known->second.get();
        const auto model = models_.model(language);
        auto tagger = model.succeeded() ? std::make_unique<SpanTagger>(model.value()) : nullptr;
        return taggers_.emplace(language, std::move(tagger)).first->second.get();
    }

    const ModelStore& models_;
    LanguageMarker languages_;
    Tokeniser tokeniser_;
    std::map<std::string, std::unique_ptr<SpanTagger>, std::less<>> taggers_; ///< by language
    Paragraph paragraph_;
};

Analyser::Analyser(const Engine& engine) : work_(std::make_unique<Work>(engine)) {}
Analyser::~Analyser() = default;
Analyser::Analyser(Analyser&&) noexcept = default;
Analyser& Analyser::operator=(Analyser&&) noexcept = default;

void Analyser::analyse(std::string_view text, const TextContext& context, Depth depth,
                       const Visitor& visitor) {
    for (std::size_t start = 0; start < text.size();) {
        const Paragraph& paragraph = work_->paragraphAt(text, start, context, depth);
        if (!visitor(paragraph)) return;
        start = paragraph.range.end();
    }
}

} // namespace lexiform::linguistics
