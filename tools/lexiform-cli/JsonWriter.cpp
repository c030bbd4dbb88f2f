#include "tools/lexiform-cli/JsonWriter.h"

#include "base/TextRange.h"
#include "platform/linguistics/LexicalTags.h"

#include <nlohmann/json.hpp>

namespace lexiform::cli {

namespace {

using Json = nlohmann::json;
using linguistics::Token;

std::string quoted(std::string_view text) {
    return Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string quotedOrNull(std::string_view text) {
    return text.empty() ? "null" : quoted(text);
}

void appendToken(const Token& token, const TextBlock& block, std::string& out) {
    out.append("{\"text\":").append(quoted(substring(block.text, token.range)));
    out.append(",\"start\":").append(std::to_string(block.offset + token.range.start));
    out.append(",\"length\":").append(std::to_string(token.range.length));
    out.append(",\"lemma\":").append(token.lemma ? quoted(*token.lemma) : "null");
    out.append(",\"pos\":").append(quoted(nameOf(token.pos)));
    out.append(",\"tag\":").append(quoted(nameTypeOrLexicalClass(token, block.text)));
    out.append(",\"script\":").append(quotedOrNull(token.script));
    out.append(",\"language\":").append(quotedOrNull(token.language)).append("}");
}

} // namespace

std::string JsonFormat::startText(std::string_view name, bool first) const {
    return std::string(first ? "" : ",") + "\n{\"file\":" + quotedOrNull(name) + ",\"paragraphs\":[";
}

void JsonWriter::paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& piece) {
    std::string& out = piece.text;
    // Every block has a paragraph, so only the first of a text has none before it.
    out += isFirst_ && block.offset == 0 ? "\n{\"sentences\":[" : ",\n{\"sentences\":[";
    isFirst_ = false;
    bool inSentence = false;
    for (const Token& token : paragraph.tokens) {
        if (isBlank(token)) continue;
        if (inSentence && !token.startsSentence) {
            out += ",\n";
        } else {
            out += inSentence ? "]},\n{\"tokens\":[\n" : "\n{\"tokens\":[\n";
            inSentence = true;
        }
        appendToken(token, block, out);
    }
    out += inSentence ? "]}]}" : "]}";
}

} // namespace lexiform::cli
