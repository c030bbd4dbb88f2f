#include "linguistics/PlainTagger.h"

#include "linguistics/text/AsciiText.h"
#include "linguistics/text/Characters.h"

namespace lexiform::linguistics {

bool isFigure(std::string_view word) {
    const Characters& characters = Characters::table();
    bool digits = false;
    for (std::size_t at = 0; at < word.size();) {
        if (isAsciiLetter(word[at])) return false;
        const CodePoint point = codePointAt(word, at);
        const CharacterClass kind = characters.classOf(point);
        if (kind == CharacterClass::letter || kind == CharacterClass::joinedLetter) return false;
        digits = digits || kind == CharacterClass::digit;
        at += point.length;
    }
    return digits;
}

void tagByCharacters(std::string_view text, std::span<Token> tokens) {
    for (Token& token : tokens) {
        if (token.kind == TokenKind::punctuation)
            token.pos = UniversalPos::PUNCT;
        else if (token.kind == TokenKind::symbol)
            token.pos = UniversalPos::SYM;
        else if (token.kind == TokenKind::word && isFigure(substring(text, token.range)))
            token.pos = UniversalPos::NUM;
        else
            token.pos = UniversalPos::X;
    }
}

} // namespace lexiform::linguistics
