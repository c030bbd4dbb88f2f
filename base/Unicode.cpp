#include "base/Unicode.h"

#include "base/fatalError.h"

#include <unicode/brkiter.h>
#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/normalizer2.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>

namespace lexiform {

namespace {

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// The length of a text for an interface that counts in 32 bits.
std::int32_t shortLength(std::string_view text) {
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
        fatalError("a text is too long for a Unicode operation");
    return static_cast<std::int32_t>(text.size());
}

void require(UErrorCode status) {
    if (U_FAILURE(status)) fatalError("a Unicode operation failed");
}

const icu::Normalizer2& nfc() {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const instance = icu::Normalizer2::getNFCInstance(status);
    require(status);
    return *instance;
}

struct CloseText {
    void operator()(UText* text) const { utext_close(text); }
};

} // namespace

std::string lowerCased(std::string_view text) {
    std::string lower;
    if (isAscii(text)) {
        lower.assign(text);
        for (char& c : lower)
            if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
        return lower;
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::StringByteSink<std::string> sink(&lower, shortLength(text));
    // The empty locale is the root: the mapping of no language in particular.
    icu::CaseMap::utf8ToLower("", 0, {text.data(), shortLength(text)}, sink, nullptr, status);
    require(status);
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

bool isComposed(std::string_view text) {
    if (isAscii(text)) return true;
    UErrorCode status = U_ZERO_ERROR;
    const bool composedAlready =
        nfc().isNormalizedUTF8(icu::StringPiece(text.data(), shortLength(text)), status) != 0;
    require(status);
    return composedAlready;
}

std::string composed(std::string_view text) {
    if (isAscii(text)) return std::string(text);
    UErrorCode status = U_ZERO_ERROR;
    std::string result;
    icu::StringByteSink<std::string> sink(&result, shortLength(text));
    nfc().normalizeUTF8(0, {text.data(), shortLength(text)}, sink, nullptr, status);
    require(status);
    return result;
}

bool canonicallyEqual(std::string_view a, std::string_view b) {
    return a == b || composed(a) == composed(b);
}

std::string_view firstCharacters(std::string_view text, std::size_t count) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> clusters(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    const std::unique_ptr<UText, CloseText> opened(
        utext_openUTF8(nullptr, text.data(), shortLength(text), &status));
    require(status);
    clusters->setText(opened.get(), status);
    require(status);
    std::int32_t end = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::int32_t next = clusters->next();
        if (next == icu::BreakIterator::DONE) return text;
        end = next;
    }
    return text.substr(0, static_cast<std::size_t>(end));
}

} // namespace lexiform
