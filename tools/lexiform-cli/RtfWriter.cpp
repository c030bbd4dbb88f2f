#include "tools/lexiform-cli/RtfWriter.h"

#include "base/AttributedText.h"
#include "base/TextRange.h"
#include "tools/lexiform-cli/tokenColour.h"

namespace lexiform::cli {

void RtfWriter::paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& out) {
    AttributedText coloured;
    for (const linguistics::Token& token : paragraph.tokens)
        coloured.append(substring(block.text, token.range), tokenColour(token, block.text));
    std::size_t start = 0;
    for (const AttributedText::Run& run : coloured.runs()) {
        document::appendRtf(substring(coloured.string(), {start, run.end - start}), run.colour, out.text);
        start = run.end;
    }
}

} // namespace lexiform::cli
