#include "document/text/guessCharset.h"

#include "base/fatalError.h"
#include "document/text/CharsetDecoder.h"
#include "document/text/utf8.h"

#include <unicode/ucsdet.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

namespace lexiform::document {

namespace {

// No more of a text is looked at by the detector.
constexpr std::size_t sampleSize = 8000;

struct CloseDetector {
    void operator()(UCharsetDetector* detector) const { ucsdet_close(detector); }
};
using Detector = std::unique_ptr<UCharsetDetector, CloseDetector>;

/// The first lines with bytes from 80 up: lines of ASCII tell nothing, however many come first. No
/// encoding in question has a line feed inside a character.
std::string tellingLines(std::string_view bytes) {
    std::string sample;
    while (!bytes.empty() && sample.size() < sampleSize) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
        const std::string_view line = bytes.substr(0, end);
        if (!isAscii(line)) sample += line.substr(0, sampleSize);
        bytes.remove_prefix(end);
    }
    return sample;
}

/// The names of the likely character sets of a sample, the likeliest first.
std::vector<std::string> likelyCharsets(const std::string& sample) {
    UErrorCode status = U_ZERO_ERROR;
    const Detector detector(ucsdet_open(&status));
    if (U_FAILURE(status)) fatalError("the detector of character sets could not be opened");
    ucsdet_setText(detector.get(), sample.data(), static_cast<int32_t>(sample.size()), &status);
    int32_t found = 0;
    const UCharsetMatch** matches = ucsdet_detectAll(detector.get(), &found, &status);
    std::vector<std::string> names;
    for (int32_t i = 0; U_SUCCESS(status) && i < found; ++i)
        names.emplace_back(ucsdet_getName(matches[i], &status));
    return names;
}

bool isUnicode(const std::string& name) {
    return name.starts_with("UTF-");
}

bool fits(std::string_view bytes, const std::string& name) {
    auto decoder = CharsetDecoder::named(name);
    std::string ignored;
    return decoder && decoder->append(bytes, ignored);
}

} // namespace

std::optional<std::string> escapedCharset(std::string_view bytes) {
    const std::size_t escape = std::min(bytes.find("\x1B$"), bytes.find("\x1B("));
    if (escape == std::string_view::npos || !isAscii(bytes)) return std::nullopt;
    for (const std::string& name : likelyCharsets(std::string(bytes.substr(escape, sampleSize))))
        if (name.starts_with("ISO-2022") && fits(bytes, name)) return name;
    return std::nullopt;
}

std::string guessCharset(std::string_view bytes) {
    const std::string sample = tellingLines(bytes);
    for (const std::string& name : likelyCharsets(sample))
        if (!isUnicode(name) && fits(bytes, name)) return name;
    return "windows-1252";
}

} // namespace lexiform::document
