#include "platform/linguistics/LinguisticTagger.h"

#include "base/fatalError.h"
#include "platform/linguistics/TokenUnits.h"
#include "platform/linguistics/wordTags.h"

#include <algorithm>
#include <utility>

namespace lexiform {

namespace {

using linguistics::Depth;
using linguistics::Engine;
using linguistics::Paragraph;
using linguistics::TextContext;
using linguistics::Token;

using Tag = std::optional<std::string_view>;

Tag noTag(const Token& /*token*/, std::string_view /*text*/) {
    return std::nullopt;
}

/// A sentence has a script and a language, but no lexical class and no lemma.
TagOfToken tagsUnder(TagScheme scheme, NLTokenUnit unit) {
    const TagOfToken ofWords = wordTagsUnder(scheme);
    if (ofWords == nullptr) fatalError("a tagger was asked for a scheme that it does not have");
    const bool suitsAnyUnit = scheme == NLTagSchemeScript || scheme == NLTagSchemeLanguage;
    return unit == NLTokenUnit::word || suitsAnyUnit ? ofWords : noTag;
}

/// Calls the visitor for tokens of `text`, which starts `offset` bytes into the tagger's own.
class Visit {
public:
    Visit(std::string_view text, std::size_t offset, TagOfToken tagOf, const Tagger::Visitor& visitor)
        : text_(text), offset_(offset), tagOf_(tagOf), visitor_(visitor) {}

    [[nodiscard]] bool everyToken(const Paragraph& paragraph) const {
        return std::all_of(paragraph.tokens.begin(), paragraph.tokens.end(),
                           [this](const Token& token) { return one(token.range, tagOf_(token, text_)); });
    }

    [[nodiscard]] bool words(const Paragraph& paragraph, NLTaggerOptions options) const {
        return all(wordsOf(paragraph, text_, tagOf_, options));
    }

    [[nodiscard]] bool sentences(const Paragraph& paragraph) const {
        return all(sentencesOf(paragraph, text_, tagOf_));
    }

    [[nodiscard]] bool whole(const Paragraph& paragraph) const {
        return all({wholeOf(paragraph, text_, tagOf_)});
    }

    /// The document is one token, with the tag of its first paragraph that has one.
    void document(const Engine& engine, const TextContext& context, Depth depth) const {
        std::optional<std::string> tag; // outlives the paragraph that it comes from
        engine.analyse(text_, context, depth, [&](const Paragraph& paragraph) {
            if (const Tag found = wholeOf(paragraph, text_, tagOf_).tag) tag = *found;
            return !tag;
        });
        if (!text_.empty()) (void)one({0, text_.size()}, tag);
    }

private:
    [[nodiscard]] bool one(TextRange range, Tag tag) const {
        return visitor_(tag, {offset_ + range.start, range.length}) == Next::proceed;
    }

    [[nodiscard]] bool all(const std::vector<TaggedUnit>& units) const {
        return std::all_of(units.begin(), units.end(),
                           [this](const TaggedUnit& unit) { return one(unit.range, unit.tag); });
    }

    std::string_view text_;
    std::size_t offset_;
    TagOfToken tagOf_;
    const Tagger::Visitor& visitor_;
};

bool areKnown(std::span<const TagScheme> schemes) {
    return std::all_of(schemes.begin(), schemes.end(),
                       [](TagScheme scheme) { return wordTagsUnder(scheme) != nullptr; });
}

} // namespace

LinguisticTagger::LinguisticTagger(std::shared_ptr<const Engine> engine, std::span<const TagScheme> schemes,
                                   std::optional<TextContext> context)
    : engine_(std::move(engine)), given_(std::move(context)), depth_(depthFor(schemes)),
      keepsAnalysis_(schemes.size() > 1) {}

void LinguisticTagger::setString(std::string text) {
    text_ = std::move(text);
    own_.reset();
    words_.reset();
}

const TextContext& LinguisticTagger::context() {
    if (given_) return *given_;
    if (!own_) own_ = engine_->contextOf(text_);
    return *own_;
}

void LinguisticTagger::enumerateTags(TextRange range, NLTokenUnit unit, TagScheme scheme,
                                     NLTaggerOptions options, const Visitor& visitor) {
    const std::string_view text = substring(text_, range);
    const Visit visit(text, range.start, tagsUnder(scheme, unit), visitor);
    const bool everyWord = unit == NLTokenUnit::word && options.empty();
    if (everyWord && keepsAnalysis_) return enumerateKept(range, scheme, visitor);
    if (unit == NLTokenUnit::document) return visit.document(*engine_, context(), depth_);
    // What is left out and what is joined depends on classes and names, whatever the scheme.
    const Depth depth = options.empty() ? depth_ : std::max(depth_, Depth::classes);
    engine_->analyse(text, context(), depth, [&](const Paragraph& paragraph) {
        if (everyWord) return visit.everyToken(paragraph);
        if (unit == NLTokenUnit::word) return visit.words(paragraph, options);
        return unit == NLTokenUnit::sentence ? visit.sentences(paragraph) : visit.whole(paragraph);
    });
}

void LinguisticTagger::enumerateKept(TextRange range, TagScheme scheme, const Visitor& visitor) {
    if (!words_ || kept_ != range) {
        words_.emplace(substring(text_, range), *engine_, context(), depth_);
        kept_ = range;
    }
    words_->enumerate(scheme, range.start, visitor);
}

TaggerFactory linguisticTaggers(std::shared_ptr<const Engine> engine, std::optional<TextContext> context) {
    return [engine = std::move(engine),
            context = std::move(context)](std::span<const TagScheme> schemes) -> std::unique_ptr<Tagger> {
        if (!areKnown(schemes)) return nullptr;
        return std::make_unique<LinguisticTagger>(engine, schemes, context);
    };
}

} // namespace lexiform
