#include "linguistics/language/ScriptMarker.h"

#include "linguistics/text/AsciiText.h"
#include "linguistics/text/Characters.h"

namespace lexiform::linguistics {

namespace {

constexpr std::string_view latin = "Latn";

std::string_view scriptOf(const Characters& characters, std::string_view token) {
    for (std::size_t at = 0; at < token.size();) {
        if (isAsciiLetter(token[at])) return latin;
        const CodePoint point = codePointAt(token, at);
        at += point.length;
        if (point.value < 0x80 || !point.valid) continue;
        const std::string_view script = characters.scriptOf(point.value);
        if (!script.empty()) return script;
    }
    return {};
}

} // namespace

void markScripts(std::string_view text, std::span<Token> tokens) {
    const Characters& characters = Characters::table();
    std::string_view current;
    std::size_t undecided = 0;
    for (Token& token : tokens) {
        const std::string_view own = isBlank(token) ? "" : scriptOf(characters, substring(text, token.range));
        if (!own.empty()) {
            if (current.empty())
                for (Token& earlier : tokens.first(undecided))
                    earlier.script = own;
            current = own;
        }
        if (current.empty()) ++undecided;
        token.script = current;
    }
}

} // namespace lexiform::linguistics
