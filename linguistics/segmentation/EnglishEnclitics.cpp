#include "linguistics/segmentation/EnglishEnclitics.h"

#include "linguistics/segmentation/SpecialForms.h"
#include "linguistics/text/AsciiText.h"

#include <algorithm>

namespace lexiform::linguistics {

namespace {

// "1960's", "80's": one word, as "1960s" is.
bool isDecade(std::string_view figure, std::string_view tail) {
    return tail == "s" && (figure.size() == 2 || figure.size() == 4) && figure.back() == '0' &&
           std::all_of(figure.begin(), figure.end(), isAsciiDigit);
}

} // namespace

std::size_t startOfEnclitic(std::string_view word) {
    const std::size_t mark = word.find_last_of("'`\x99\xB4");
    if (mark == std::string_view::npos) return word.size();
    std::size_t start = mark;
    while (start > 0 && (static_cast<unsigned char>(word[start]) & 0xC0) == 0x80)
        --start;
    if (start == 0) return word.size();
    const std::size_t length = lengthOfApostrophe(word.substr(start));
    if (length == 0) return word.size();
    const std::string_view tail = word.substr(start + length);
    if (isDecade(word.substr(0, start), tail)) return word.size();
    if (tail.size() == 1 && asciiLower(tail[0]) == 't' && start > 1 && asciiLower(word[start - 1]) == 'n')
        return start - 1;
    return lengthOfEnclitic(word.substr(start)) == length + tail.size() ? start : word.size();
}

bool isIrishName(std::string_view word) {
    const std::size_t mark = word.size() > 3 && word[0] == 'O' ? lengthOfApostrophe(word.substr(1)) : 0;
    return mark > 0 && mark + 2 < word.size() && isAsciiUpper(word[mark + 1]) &&
           isAsciiLetter(word[mark + 2]);
}

} // namespace lexiform::linguistics
