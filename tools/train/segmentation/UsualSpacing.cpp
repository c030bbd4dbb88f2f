#include "tools/train/segmentation/UsualSpacing.h"

#include "linguistics/text/AsciiText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace lexiform::train {

using namespace linguistics;

namespace {

using namespace std::string_view_literals;

constexpr std::array closing = {","sv, ";"sv, ":"sv,      ")"sv,      "]"sv,
                                "}"sv, "%"sv, "\u2026"sv, "\u201D"sv, "\u00BB"sv};
constexpr std::array opening = {"("sv,      "["sv,      "{"sv,      "\u201C"sv,
                                "\u201E"sv, "\u00AB"sv, "\u00BF"sv, "\u00A1"sv};
// Longer ones are words before a dash or parts of a list ("vee- en").
constexpr std::size_t longestProclitic = 7;

template <std::size_t size>
bool isOneOf(const std::array<std::string_view, size>& list, std::string_view form) {
    return std::find(list.begin(), list.end(), form) != list.end();
}

bool endsSentence(std::string_view form) {
    return form.find_first_not_of(".!?") == std::string_view::npos;
}

bool hangsOn(std::string_view form) {
    if (endsSentence(form) || isOneOf(closing, form)) return true;
    return form.size() > 1 && (form[0] == '\'' || form[0] == '-') && !isAsciiDigit(form[1]) && form[1] != '-';
}

bool holdsNext(std::string_view form) {
    if (isOneOf(opening, form)) return true;
    return form.size() > 1 && form.size() <= longestProclitic && form.back() == '-' &&
           !isAsciiDigit(form[0]) && form[0] != '-';
}

} // namespace

bool hasLostSpacing(const Corpus& corpus) {
    // Parts of words that a recipe cut apart are joined in any corpus; marks tell.
    std::size_t marks = 0, joined = 0;
    for (const GoldSentence& sentence : corpus)
        for (std::size_t i = 1; i < sentence.tokens.size(); ++i) {
            if (!hangsOn(sentence.tokens[i].form)) continue;
            ++marks;
            joined += sentence.tokens[i - 1].spaceAfter ? 0 : 1;
        }
    return joined * 10 < marks;
}

Corpus withUsualSpacing(Corpus corpus) {
    for (GoldSentence& sentence : corpus) {
        bool quoted = false;
        for (std::size_t i = 0; i < sentence.tokens.size(); ++i) {
            GoldToken& token = sentence.tokens[i];
            const bool isQuote = token.form == "\"";
            if (i > 0 && (hangsOn(token.form) || (isQuote && quoted)))
                sentence.tokens[i - 1].spaceAfter = false;
            if (holdsNext(token.form) || (isQuote && !quoted)) token.spaceAfter = false;
            if (isQuote) quoted = !quoted;
        }
        if (!sentence.tokens.empty()) sentence.tokens.back().spaceAfter = true;
    }
    return corpus;
}

} // namespace lexiform::train
