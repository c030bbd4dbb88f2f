#pragma once

#include "linguistics/Analysis.h"
#include "linguistics/Characters.h"
#include "linguistics/DictionaryBreaker.h"
#include "linguistics/Unit.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// Cuts a paragraph into tokens that cover it, after the conventions of the English treebanks where
/// they say something (do|n't, it|'s, well|-|known, $|5.50), by Unicode's properties elsewhere.
/// Time is linear in the paragraph. Not for several threads at once.
class Tokeniser {
public:
    Tokeniser();

    /// Appends the tokens of `paragraph`, any bytes, to `tokens`; their ranges count from `offset`,
    /// the place of the paragraph in the text. Sets range and kind only.
    void tokenise(std::string_view paragraph, std::size_t offset, std::vector<Token>& tokens);

private:
    [[nodiscard]] Unit unit(std::size_t at) const { return unitAt(characters_, paragraph_, at); }
    void emit(std::size_t end, TokenKind kind);

    void takeSpaces();
    void takeChunk();
    [[nodiscard]] std::size_t endOfChunk();
    void takePiece(std::size_t chunkStart, std::size_t chunkEnd);
    [[nodiscard]] bool takeSpecialForm(std::size_t chunkStart, std::size_t chunkEnd);
    [[nodiscard]] bool takeToken(std::size_t length, TokenKind kind);
    void takeUnit(const Unit& unit, std::size_t chunkEnd);
    void takeWord(std::size_t end);
    void takeFigure(std::size_t end);
    void takeStem(std::size_t end);
    void takeJoinedWords(std::size_t chunkEnd);
    void takeMarks(std::size_t chunkEnd, TokenKind kind);

    const Characters& characters_;
    DictionaryBreaker dictionary_;
    std::string_view paragraph_;
    std::size_t offset_ = 0;
    std::size_t at_ = 0; ///< the first byte that is in no token yet
    bool plain_ = false; ///< the chunk holds ASCII letters only
    bool hasAddressMark_ = false;
    std::vector<Token>* tokens_ = nullptr;
};

} // namespace lexiform::linguistics
