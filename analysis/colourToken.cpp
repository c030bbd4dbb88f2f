#include "analysis/colourToken.h"

#include "analysis/ClassTable.h"
#include "base/TextRange.h"
#include "base/Unicode.h"

namespace lexiform {

namespace {

void count(std::string_view word, const ClassRow& row, ViewController& controller) {
    switch (row.key) {
    case ClassRow::Key::none:
        return;
    case ClassRow::Key::lowerCased:
        return countWord(controller.*row.dictionary, lowerCased(word));
    case ClassRow::Key::asWritten:
        return countWord(controller.*row.dictionary, word);
    }
}

} // namespace

Next colourToken(std::optional<std::string_view> tag, TextRange token, std::string_view text,
                 ViewController& controller, AttributedText& output) {
    if (!tag) return Next::proceed;
    const std::string_view word = substring(text, token);
    const ClassRow& row = classRow(*tag);
    count(word, row, controller);
    output.append(word, row.colour);
    return Next::proceed;
}

} // namespace lexiform
