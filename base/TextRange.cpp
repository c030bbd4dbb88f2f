#include "base/TextRange.h"

#include "base/fatalError.h"

namespace lexiform {

std::string_view substring(std::string_view text, TextRange range) {
    // Written without range.end(), which may wrap around for a range that is out of bounds.
    if (range.start > text.size() || range.length > text.size() - range.start)
        fatalError("a text range reaches past the end of its text");
    return text.substr(range.start, range.length);
}

} // namespace lexiform
