#include "tests/linguistics/AnalysedText.h"

#include "base/fatalError.h"

#include <unicode/utf8.h>

namespace lexiform::linguistics {

namespace {

AnalysedText analysedBy(const Engine& engine, std::string text) {
    AnalysedText result{std::move(text), {}};
    engine.analyse(result.text, [&](const Paragraph& paragraph) {
        result.paragraphs.push_back(paragraph);
        for (Token& token : result.paragraphs.back().tokens) {
            token.language = result.strings.emplace_back(token.language);
            if (token.lemma) token.lemma = result.strings.emplace_back(*token.lemma);
        }
        return true;
    });
    return result;
}

// Whether `at` lies inside a well-formed UTF-8 sequence.
bool splitsSequence(std::string_view text, std::size_t at) {
    if (at >= text.size()) return false;
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    for (std::size_t start = at < 3 ? 0 : at - 3; start < at; ++start) {
        auto end = static_cast<std::int32_t>(start);
        UChar32 value = 0;
        U8_NEXT(bytes, end, static_cast<std::int32_t>(text.size()), value);
        if (value >= 0 && static_cast<std::size_t>(end) > at) return true;
    }
    return false;
}

} // namespace

bool isGap(const Token& token) {
    return token.kind == TokenKind::whitespace || token.kind == TokenKind::lineBreak;
}

std::vector<Token> AnalysedText::tokens() const {
    std::vector<Token> all;
    for (const Paragraph& paragraph : paragraphs)
        all.insert(all.end(), paragraph.tokens.begin(), paragraph.tokens.end());
    return all;
}

std::vector<std::string> AnalysedText::words() const {
    std::vector<std::string> spellings;
    for (const Token& token : tokens())
        if (!isGap(token)) spellings.emplace_back(substring(text, token.range));
    return spellings;
}

std::string AnalysedText::cut() const {
    std::string result;
    for (const Token& token : tokens()) {
        if (isGap(token)) continue;
        if (!result.empty()) result += token.startsSentence ? " || " : "|";
        result += substring(text, token.range);
    }
    return result;
}

Token AnalysedText::token(std::string_view spelling) const {
    for (const Token& token : tokens())
        if (substring(text, token.range) == spelling) return token;
    fatalError("the text has no such token");
}

AnalysedText analysedPlainly(std::string text, const std::string& language) {
    static const auto models = std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{});
    const Engine engine(models, {language});
    return analysedBy(engine, std::move(text));
}

AnalysedText analysed(std::string text) {
    static const Engine engine(
        std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{LEXIFORM_MODELS_DIR}));
    return analysedBy(engine, std::move(text));
}

std::string breachIn(const AnalysedText& analysed) {
    std::size_t end = 0;
    for (const Paragraph& paragraph : analysed.paragraphs) {
        if (paragraph.range.start != end) return "a gap between paragraphs at " + std::to_string(end);
        bool sentence = false;
        for (const Token& token : paragraph.tokens) {
            if (token.range.start != end) return "a gap between tokens at " + std::to_string(end);
            if (token.range.length == 0) return "an empty token at " + std::to_string(end);
            if (splitsSequence(analysed.text, end)) return "a split character at " + std::to_string(end);
            if (token.startsSentence && isGap(token) && sentence) return "white space starts a sentence";
            sentence = sentence || token.startsSentence;
            end = token.range.end();
        }
        if (!sentence) return "a paragraph without a sentence";
        if (paragraph.range.end() != end) return "a paragraph that its tokens do not fill";
    }
    return end == analysed.text.size() ? "" : "the text's end is missing";
}

} // namespace lexiform::linguistics
