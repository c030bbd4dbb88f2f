#include "tools/lexiform-cli/LanguageWriter.h"

#include "base/TextRange.h"

#include <algorithm>
#include <map>
#include <span>
#include <string_view>

namespace lexiform::cli {

namespace {

using linguistics::Token;

// BCP 47 for a language that is not known.
constexpr std::string_view undetermined = "und";

/// The language of most of the words, by their length.
std::string_view languageOf(std::span<const Token> tokens) {
    std::map<std::string_view, std::size_t> bytes;
    for (const Token& token : tokens)
        if (!token.language.empty()) bytes[token.language] += token.range.length;
    if (bytes.empty()) return undetermined;
    return std::max_element(bytes.begin(), bytes.end(),
                            [](const auto& a, const auto& b) { return a.second < b.second; })
        ->first;
}

void appendLine(std::span<const Token> tokens, std::string_view text, std::string& out) {
    const std::size_t start = out.size();
    bool isSpacePending = false;
    for (const Token& token : tokens) {
        if (isBlank(token)) {
            isSpacePending = out.size() > start;
            continue;
        }
        if (out.size() == start) out.append(languageOf(tokens)).append("\t");
        if (isSpacePending) out += ' ';
        isSpacePending = false;
        out += substring(text, token.range);
    }
    if (out.size() > start) out += '\n';
}

} // namespace

void LanguageWriter::paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& out) {
    const std::span<const Token> tokens = paragraph.tokens;
    std::size_t start = 0;
    for (std::size_t i = 1; i < tokens.size() && bySentence_; ++i) {
        if (!tokens[i].startsSentence) continue;
        appendLine(tokens.subspan(start, i - start), block.text, out.text);
        start = i;
    }
    appendLine(tokens.subspan(start), block.text, out.text);
}

} // namespace lexiform::cli
