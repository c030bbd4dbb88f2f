#include "linguistics/segmentation/LowerCasedHash.h"

#include "linguistics/text/AsciiText.h"
#include "linguistics/text/Utf8.h"

#include <unicode/uchar.h>

namespace lexiform::linguistics {

namespace {

constexpr std::uint32_t stepped(std::uint32_t hash, std::uint32_t value) {
    return (hash ^ value) * 0x01000193U;
}

constexpr std::uint32_t finished(std::uint32_t hash) {
    hash ^= hash >> 15;
    hash *= 0x2C1B3C6DU;
    return hash ^ (hash >> 13);
}

} // namespace

std::uint32_t lowerCasedHash(std::string_view word) {
    std::uint32_t hash = 0x811C9DC5U;
    for (std::size_t at = 0; at < word.size();) {
        if (static_cast<unsigned char>(word[at]) < 0x80) {
            hash = stepped(hash, static_cast<unsigned char>(asciiLower(word[at++])));
            continue;
        }
        const CodePoint point = codePointAt(word, at);
        hash = stepped(hash, static_cast<std::uint32_t>(u_tolower(static_cast<UChar32>(point.value))));
        at += point.length;
    }
    return finished(hash);
}

} // namespace lexiform::linguistics
