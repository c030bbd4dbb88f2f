#include "tools/lexiform-cli/TsvWriter.h"

#include "base/TextRange.h"
#include "platform/linguistics/LexicalTags.h"

namespace lexiform::cli {

void TsvWriter::start(std::string& out) {
    out += "sentence\tform\tlemma\tupos\ttag\tscript\tlanguage\tstart\tlength\n";
}

void TsvWriter::paragraph(const linguistics::Paragraph& paragraph, std::string_view text, std::string& out) {
    for (const linguistics::Token& token : paragraph.tokens) {
        if (isBlank(token)) continue;
        if (token.startsSentence) ++sentences_;
        out.append(std::to_string(sentences_)).append("\t");
        out.append(substring(text, token.range)).append("\t");
        out.append(token.lemma.value_or("")).append("\t");
        out.append(nameOf(token.pos)).append("\t");
        out.append(nameTypeOrLexicalClass(token, text)).append("\t");
        out.append(token.script).append("\t");
        out.append(token.language).append("\t");
        out.append(std::to_string(token.range.start)).append("\t");
        out.append(std::to_string(token.range.length)).append("\n");
    }
}

} // namespace lexiform::cli
