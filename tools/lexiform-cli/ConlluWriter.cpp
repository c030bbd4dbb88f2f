#include "tools/lexiform-cli/ConlluWriter.h"

#include "base/TextRange.h"
#include "platform/linguistics/LexicalTags.h"

#include <unicode/utf8.h>

#include <cstdint>
#include <cstdio>

namespace lexiform::cli {

namespace {

using linguistics::Paragraph;
using linguistics::Token;

void appendEscaped(UChar32 c, std::string& out) {
    switch (c) {
    case ' ':
        out += "\\s";
        return;
    case '\t':
        out += "\\t";
        return;
    case '\r':
        out += "\\r";
        return;
    case '\n':
        out += "\\n";
        return;
    default:
        break;
    }
    char escape[16];
    std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(c));
    out += escape;
}

std::string escaped(std::string_view space) {
    std::string escapes;
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(space.data());
    const std::size_t size = space.size();
    for (std::size_t at = 0; at < size;) {
        UChar32 c = 0;
        U8_NEXT(bytes, at, size, c);
        appendEscaped(c, escapes);
    }
    return escapes;
}

/// One past the last token of the sentence that starts at `first`, white space at its end left out.
std::size_t endOfSentence(const std::vector<Token>& tokens, std::size_t first) {
    std::size_t end = first + 1;
    for (std::size_t next = end; next < tokens.size() && !tokens[next].startsSentence; ++next)
        if (!isBlank(tokens[next])) end = next + 1;
    return end;
}

/// A sentence on one line: line breaks become blanks.
void appendSentenceText(const std::vector<Token>& tokens, std::size_t first, std::string_view text,
                        std::string& out) {
    const std::size_t end = endOfSentence(tokens, first);
    for (std::size_t i = first; i < end; ++i)
        if (tokens[i].kind == linguistics::TokenKind::lineBreak)
            out += ' ';
        else
            out += substring(text, tokens[i].range);
}

} // namespace

std::string ConlluFormat::startText(std::string_view name, bool /*first*/) const {
    return name.empty() ? "" : "# newdoc id = " + std::string(name) + "\n";
}

void ConlluWriter::paragraph(const Paragraph& paragraph, const TextBlock& block, Piece& out) {
    const std::string_view text = block.text;
    paragraphPending_ = true;
    for (std::size_t i = 0; i < paragraph.tokens.size(); ++i) {
        const Token& token = paragraph.tokens[i];
        if (isBlank(token)) {
            (row_.empty() ? spaceBefore_ : spaceAfter_) += substring(text, token.range);
            continue;
        }
        finishRow(out.text);
        if (token.startsSentence || paragraphPending_) startSentence(paragraph, i, text, out);
        addRow(token, text);
    }
}

void ConlluWriter::endBlock(Piece& out) {
    finishRow(out.text);
    if (wordInSentence_ > 0) out.text += '\n';
    wordInSentence_ = 0;
    spaceBefore_.clear();
}

void ConlluWriter::startSentence(const Paragraph& paragraph, std::size_t first, std::string_view text,
                                 Piece& out) {
    if (wordInSentence_ > 0) out.text += '\n';
    if (paragraphPending_) out.text += "# newpar\n";
    paragraphPending_ = false;
    wordInSentence_ = 0;
    out.startSentence();
    out.text += "# sent_id = ";
    out.appendSentenceNumber();
    out.text += "\n# text = ";
    appendSentenceText(paragraph.tokens, first, text, out.text);
    out.text += '\n';
}

void ConlluWriter::addRow(const Token& token, std::string_view text) {
    row_ = std::to_string(++wordInSentence_);
    row_.append("\t").append(substring(text, token.range));
    row_.append("\t").append(token.lemma.value_or("_"));
    row_.append("\t").append(nameOf(token.pos));
    row_.append("\t").append(nameTypeOrLexicalClass(token, text));
    row_.append("\t_\t_\t_\t_\t");
    language_ = token.language;
    script_ = token.script;
}

void ConlluWriter::finishRow(std::string& out) {
    if (row_.empty()) return;
    out += row_;
    // The guidelines want the fields in alphabetical order.
    const std::size_t start = out.size();
    const auto field = [&](std::string_view name, std::string_view value) {
        if (out.size() > start) out += '|';
        out.append(name).append("=").append(value);
    };
    if (!language_.empty()) field("Lang", language_);
    if (!script_.empty()) field("Script", script_);
    if (spaceAfter_.empty()) field("SpaceAfter", "No");
    if (!spaceAfter_.empty() && spaceAfter_ != " ") field("SpacesAfter", escaped(spaceAfter_));
    if (!spaceBefore_.empty()) field("SpacesBefore", escaped(spaceBefore_));
    if (out.size() == start) out += '_';
    out += '\n';
    row_.clear();
    spaceBefore_.clear();
    spaceAfter_.clear();
}

} // namespace lexiform::cli
