#include "tools/lexiform-cli/TsvWriter.h"

#include "base/TextRange.h"
#include "platform/linguistics/LexicalTags.h"

namespace lexiform::cli {

std::string TsvFormat::start() const {
    return "sentence\tform\tlemma\tupos\ttag\tscript\tlanguage\tstart\tlength\n";
}

void TsvWriter::paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& piece) {
    const std::string_view text = block.text;
    std::string& out = piece.text;
    for (const linguistics::Token& token : paragraph.tokens) {
        if (isBlank(token)) continue;
        if (token.startsSentence) piece.startSentence();
        piece.appendSentenceNumber();
        out += '\t';
        out.append(substring(text, token.range)).append("\t");
        out.append(token.lemma.value_or("")).append("\t");
        out.append(nameOf(token.pos)).append("\t");
        out.append(nameTypeOrLexicalClass(token, text)).append("\t");
        out.append(token.script).append("\t");
        out.append(token.language).append("\t");
        out.append(std::to_string(block.offset + token.range.start)).append("\t");
        out.append(std::to_string(token.range.length)).append("\n");
    }
}

} // namespace lexiform::cli
