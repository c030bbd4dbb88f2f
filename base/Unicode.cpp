#include "base/Unicode.h"

#include "base/fatalError.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace lexiform {

namespace {

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

std::string lowerCased(std::string_view text) {
    std::string lower;
    if (isAscii(text)) {
        lower.assign(text);
        for (char& c : lower)
            if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
        return lower;
    }
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
        fatalError("a text to lower-case is too long");
    UErrorCode status = U_ZERO_ERROR;
    icu::StringByteSink<std::string> sink(&lower, static_cast<std::int32_t>(text.size()));
    // The empty locale is the root: the mapping of no language in particular.
    icu::CaseMap::utf8ToLower("", 0, {text.data(), static_cast<std::int32_t>(text.size())}, sink, nullptr,
                              status);
    if (U_FAILURE(status)) fatalError("the lower-case mapping failed");
    return lower;
}

std::optional<std::size_t> firstInvalidUtf8(std::string_view bytes) {
    const auto* data = reinterpret_cast<const std::uint8_t*>(bytes.data());
    const std::size_t size = bytes.size();
    std::size_t at = 0;
    while (at < size) {
        if (data[at] < 0x80) {
            ++at;
            continue;
        }
        const std::size_t start = at;
        // At most four bytes are looked at, so that the macro's 32-bit index never sees a long text.
        const auto window = static_cast<std::int32_t>(std::min<std::size_t>(size - at, 4));
        std::int32_t used = 0;
        UChar32 codePoint = 0;
        U8_NEXT(data + start, used, window, codePoint);
        if (codePoint < 0) return start;
        at = start + static_cast<std::size_t>(used);
    }
    return std::nullopt;
}

} // namespace lexiform
