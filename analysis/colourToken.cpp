#include "analysis/colourToken.h"

#include "analysis/ClassTable.h"
#include "base/TextRange.h"

namespace lexiform {

Next colourToken(std::optional<std::string_view> tag, TextRange token, std::string_view text,
                 ViewController& controller, AttributedText& output) {
    if (!tag) return Next::proceed;
    const std::string_view word = substring(text, token);
    const ClassRow& row = classRow(*tag);
    countInClass(word, row, controller);
    output.append(word, row.colour);
    return Next::proceed;
}

} // namespace lexiform
