// Writes any text in any colours as RTF and reads it back: the same characters and the same colours.
// Every first byte of a piece chooses its colour.

#include "base/Unicode.h"
#include "base/fatalError.h"
#include "document/rtf/RtfReader.h"
#include "document/rtf/RtfWriter.h"
#include "document/text/utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace {

using namespace lexiform;

/// The valid characters of the bytes, in colours that change with them.
AttributedText colouredText(std::string_view bytes) {
    AttributedText text;
    int colour = 0;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t start = at;
        const char32_t point = document::takeCodePoint(bytes, at);
        const std::string_view character = bytes.substr(start, at - start);
        if (point % 3 == 0) colour = static_cast<int>(point / 3 % 10);
        if (!firstInvalidUtf8(character)) text.append(character, static_cast<Colour>(colour));
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const AttributedText text = colouredText({reinterpret_cast<const char*>(data), size});
    const std::size_t length = document::utf16Length(text.string());
    const auto rtf = document::writeRtf(text, {0, length});
    if (!rtf) fatalError("a whole text is not written");
    const auto back = document::readRtf(*rtf);
    if (!back.succeeded() || !(back.value() == text)) fatalError("a text is not read back as it was written");
    if (document::writeRtf(text, {length / 2, length - length / 2 + 1}))
        fatalError("a range past the end is written");
    return 0;
}
