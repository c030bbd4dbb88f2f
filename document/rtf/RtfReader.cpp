#include "document/rtf/RtfReader.h"

#include "document/rtf/RtfInterpreter.h"

#include <algorithm>

namespace lexiform::document {

namespace {

// A byte order mark and white space do not belong there, and other programs let them pass.
std::size_t startOf(std::string_view bytes) {
    const std::size_t mark = bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    return std::min(bytes.find_first_not_of(" \t\r\n", mark), bytes.size());
}

} // namespace

bool isRtf(std::string_view bytes) {
    return bytes.substr(startOf(bytes)).starts_with("{\\rtf");
}

Outcome<AttributedText, ReadFault> readRtf(std::string_view bytes) {
    if (!isRtf(bytes)) return ReadFault::unknownFormat;
    return RtfInterpreter(bytes.substr(startOf(bytes))).read();
}

} // namespace lexiform::document
