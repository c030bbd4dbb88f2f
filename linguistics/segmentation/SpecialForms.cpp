#include "linguistics/segmentation/SpecialForms.h"

#include "linguistics/text/AsciiText.h"

namespace lexiform::linguistics {

namespace {

using namespace std::string_view_literals;

// No mailbox or handle is longer; keeps refusals cheap.
constexpr std::size_t longestName = 128;
constexpr std::size_t longestEntity = 10;

constexpr std::array schemes = {"http://"sv, "https://"sv, "ftp://"sv, "mailto:"sv, "www."sv, "file://"sv};
// Enclitics and elisions are compared in lower case.
constexpr std::array enclitics = {"d"sv, "ll"sv, "m"sv, "re"sv, "s"sv, "ve"sv};
constexpr std::array elisions = {"bout"sv,  "cause"sv, "cuz"sv, "em"sv,  "n"sv,
                                 "round"sv, "til"sv,   "tis"sv, "twas"sv};
// Safe anywhere before a gap; longer ones first.
constexpr std::array emoticons = {":'-("sv, ":'("sv, ":-)"sv, ":-("sv, ";-)"sv, "=-)"sv, ":))"sv,
                                  "^_^"sv,  ":)"sv,  ":("sv,  ";)"sv,  "=)"sv,  "=("sv,  "<3"sv};
constexpr std::array lonelyEmoticons = {":-/"sv, ":-D"sv, ":-P"sv, ":-p"sv, ":-|"sv, ":-o"sv, "-_-"sv, ":/"sv,
                                        ":D"sv,  ":P"sv,  ":p"sv,  ":o"sv,  ":O"sv,  ":3"sv,  ":*"sv,  ":|"sv,
                                        ";D"sv,  ";P"sv,  "=D"sv,  "XD"sv,  "xD"sv,  "8)"sv,  "(:"sv};

bool startsWithIgnoringCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && std::equal(prefix.begin(), prefix.end(), text.begin(),
                                                      [](char a, char b) { return a == asciiLower(b); });
}

bool isUrlByte(char c) {
    return static_cast<unsigned char>(c) > ' ' && c != '<' && c != '>' && c != '"' && c != '\x7f';
}

// Marks at the end of an address belong to the sentence, as does a bracket that was not opened in it.
std::size_t withoutTrailingMarks(std::string_view url) {
    const bool opensBracket = url.find('(') != std::string_view::npos;
    std::size_t end = url.size();
    while (end > 0) {
        const char last = url[end - 1];
        const bool closes = last == ')' && !opensBracket;
        if (!closes && ".,;:!?'\"]}*"sv.find(last) == std::string_view::npos) break;
        --end;
    }
    return end;
}

std::size_t lengthOfUrl(std::string_view chunk) {
    const auto scheme = std::find_if(schemes.begin(), schemes.end(),
                                     [&](std::string_view s) { return startsWithIgnoringCase(chunk, s); });
    if (scheme == schemes.end()) return 0;
    const auto end = std::find_if_not(chunk.begin(), chunk.end(), isUrlByte);
    const std::size_t length =
        withoutTrailingMarks(chunk.substr(0, static_cast<std::size_t>(end - chunk.begin())));
    return length > scheme->size() ? length : 0;
}

bool isMailboxByte(char c) {
    return isAsciiAlnum(c) || c == '.' || c == '_' || c == '-' || c == '+' || c == '%';
}

std::size_t lengthOfMailAddress(std::string_view chunk) {
    std::size_t at = 0;
    while (at < chunk.size() && at < longestName && isMailboxByte(chunk[at]))
        ++at;
    if (at == 0 || at >= chunk.size() || chunk[at] != '@') return 0;
    std::size_t end = at + 1;
    while (end < chunk.size() && end - at < longestName &&
           (isAsciiAlnum(chunk[end]) || chunk[end] == '.' || chunk[end] == '-'))
        ++end;
    while (end > at && !isAsciiAlnum(chunk[end - 1]) && chunk[end - 1] != '@')
        --end;
    const bool hasDot = chunk.substr(at, end - at).find('.') != std::string_view::npos;
    return hasDot ? end : 0;
}

// "@name" and "#topic", but not "#1".
std::size_t lengthOfHandle(std::string_view chunk) {
    if (chunk.size() < 2 || (chunk[0] != '@' && chunk[0] != '#') || !isAsciiLetter(chunk[1])) return 0;
    std::size_t end = 1;
    while (end < chunk.size() && (isAsciiAlnum(chunk[end]) || chunk[end] == '_'))
        ++end;
    const bool numbered = end + 1 < chunk.size() && chunk[end] == '-' && isAsciiDigit(chunk[end + 1]);
    if (!numbered) return end;
    for (++end; end < chunk.size() && isAsciiDigit(chunk[end]); ++end) {
    }
    return end;
}

bool endsWord(std::string_view text, std::size_t at) {
    return at >= text.size() || !(isAsciiAlnum(text[at]) || static_cast<unsigned char>(text[at]) >= 0x80);
}

template <std::size_t size>
std::size_t lengthOfListed(const std::array<std::string_view, size>& list, std::string_view chunk) {
    for (const std::string_view emoticon : list)
        if (chunk.starts_with(emoticon) && endsWord(chunk, emoticon.size())) return emoticon.size();
    return 0;
}

std::size_t lettersFrom(std::string_view text, std::size_t at) {
    std::size_t end = at;
    while (end < text.size() && end - at < 8 && isAsciiLetter(text[end]))
        ++end;
    return end - at;
}

template <std::size_t size>
std::size_t lengthAfterApostrophe(const std::array<std::string_view, size>& sorted, std::string_view chunk) {
    const std::size_t mark = lengthOfApostrophe(chunk);
    if (mark == 0) return 0;
    const std::size_t letters = lettersFrom(chunk, mark);
    const bool listed = holds(sorted, LowerCasedWord(chunk.substr(mark, letters)).view());
    return listed && endsWord(chunk, mark + letters) ? mark + letters : 0;
}

std::size_t lengthOfShortYear(std::string_view chunk) {
    const std::size_t mark = lengthOfApostrophe(chunk);
    if (mark == 0 || chunk.size() < mark + 2 || !isAsciiDigit(chunk[mark]) || !isAsciiDigit(chunk[mark + 1]))
        return 0;
    std::size_t end = mark + 2;
    if (end < chunk.size() && chunk[end] == 's') ++end;
    return endsWord(chunk, end) ? end : 0;
}

} // namespace

std::size_t lengthOfAddress(std::string_view chunk) {
    if (const std::size_t url = lengthOfUrl(chunk)) return url;
    if (const std::size_t mail = lengthOfMailAddress(chunk)) return mail;
    return lengthOfHandle(chunk);
}

std::size_t lengthOfEntities(std::string_view chunk) {
    if (chunk.size() < 4 || chunk[0] != '&') return 0;
    std::size_t end = chunk[1] == '#' ? 2 : 1;
    const std::size_t name = end;
    while (end < chunk.size() && end < longestEntity && isAsciiAlnum(chunk[end]))
        ++end;
    if (end == name || end == chunk.size() || chunk[end] != ';') return 0;
    const std::string_view entity = chunk.substr(0, ++end);
    while (chunk.substr(end).starts_with(entity))
        end += entity.size();
    return end;
}

std::size_t lengthOfEmoticon(std::string_view chunk, bool startsChunk) {
    if (chunk.empty() || ":;=<^-(8Xx"sv.find(chunk[0]) == std::string_view::npos) return 0;
    if (const std::size_t length = lengthOfListed(emoticons, chunk)) return length;
    return startsChunk ? lengthOfListed(lonelyEmoticons, chunk) : 0;
}

std::size_t lengthOfElision(std::string_view chunk) {
    if (const std::size_t year = lengthOfShortYear(chunk)) return year;
    return lengthAfterApostrophe(elisions, chunk);
}

std::size_t lengthOfEnclitic(std::string_view chunk) {
    return lengthAfterApostrophe(enclitics, chunk);
}

std::size_t lengthOfMarkedFigure(std::string_view chunk) {
    if (chunk.size() < 2 || (chunk[0] != '.' && chunk[0] != '+') || !isAsciiDigit(chunk[1])) return 0;
    std::size_t end = 1;
    while (end < chunk.size() && isAsciiDigit(chunk[end]))
        ++end;
    return endsWord(chunk, end) ? end : 0;
}

bool isBrokenOff(std::string_view chunk) {
    return chunk.size() >= 2 && chunk.size() <= 3 && chunk.back() == '-' &&
           std::all_of(chunk.begin(), chunk.end() - 1, isAsciiLetter);
}

std::size_t lengthOfApostrophe(std::string_view text) {
    if (text.empty()) return 0;
    if (text[0] == '\'' || text[0] == '`') return 1;
    if (text.starts_with("\xE2\x80\x99")) return 3; // U+2019
    return text.starts_with("\xC2\xB4") ? 2 : 0;    // U+00B4, an accent typed for an apostrophe
}

} // namespace lexiform::linguistics
