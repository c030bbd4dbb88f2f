#include "tools/train/evaluation/Squeezed.h"

#include "linguistics/text/Utf8.h"

namespace lexiform::train {

namespace {

bool isSpace(char32_t value) {
    return (value >= 0x09 && value <= 0x0D) || (value >= 0x1C && value <= 0x20) || value == 0x85 ||
           value == 0xA0 || value == 0x1680 || (value >= 0x2000 && value <= 0x200A) || value == 0x2028 ||
           value == 0x2029 || value == 0x202F || value == 0x205F || value == 0x3000;
}

} // namespace

Squeezed::Squeezed(std::string_view text) : before_(text.size() + 1) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size();) {
        const auto point = linguistics::codePointAt(text, at);
        const bool space = point.valid && isSpace(point.value);
        for (std::size_t end = at + point.length; at < end; ++at) {
            before_[at] = count;
            if (!space) ++count;
        }
    }
    before_[text.size()] = count;
}

} // namespace lexiform::train
