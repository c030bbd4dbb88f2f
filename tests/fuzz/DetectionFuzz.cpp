// Reads any bytes as whatever they are and as every format that there is: a text is UTF-8, and the
// format that is detected is the one that is read.

#include "base/Unicode.h"
#include "base/fatalError.h"
#include "document/detection/detectFormat.h"
#include "document/readAttributedText.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace lexiform;
    using document::Format;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    for (const Format format :
         {Format::plainText, Format::rtf, Format::html, Format::odt, Format::docx, Format::epub}) {
        const auto text = document::readAttributedText(bytes, {format});
        if (text.succeeded() && firstInvalidUtf8(text.value().string())) fatalError("a text is not UTF-8");
    }
    const auto format = document::detectFormat(bytes);
    const auto text = document::readAttributedText(bytes);
    if (!format && text.succeeded()) fatalError("a text of no format is read");
    if (format && text.succeeded() &&
        !(text.value() == document::readAttributedText(bytes, {format}).value()))
        fatalError("a format is detected and another read");
    return 0;
}
