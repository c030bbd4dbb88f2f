#pragma once

#include "linguistics/segmentation/ChunkReviser.h"
#include "linguistics/segmentation/Conventions.h"
#include "linguistics/segmentation/DictionaryBreaker.h"
#include "linguistics/segmentation/LearnedSegmentation.h"
#include "linguistics/text/Analysis.h"
#include "linguistics/text/Characters.h"
#include "linguistics/text/Unit.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// Cuts a paragraph into tokens that cover it, after the conventions of its language's treebanks
/// (do|n't, l'|homme, $|5.50): by rules, and by what has been learnt of the language where that is
/// given. Time is linear in the paragraph. Not for several threads at once.
class Tokeniser {
public:
    Tokeniser();

    /// Appends the tokens of `paragraph`, any bytes, to `tokens`; their ranges count from `offset`,
    /// the place of the paragraph in the text. Sets range and kind only. `language` is BCP 47, or empty
    /// where none is known: then the rules that do no language harm are used. `learned` may be null;
    /// else it is that language's.
    void tokenise(std::string_view paragraph, std::size_t offset, std::string_view language,
                  const LearnedSegmentation* learned, std::vector<Token>& tokens);

private:
    [[nodiscard]] Unit unit(std::size_t at) const { return unitAt(characters_, paragraph_, at); }
    void emit(std::size_t end, TokenKind kind);
    void put(std::size_t end, TokenKind kind, bool isFixed = false);
    void emitPieces(std::size_t start);
    void emitWord(std::size_t end);

    void takeSpaces();
    void takeChunk();
    [[nodiscard]] bool endsPlainly(std::size_t start, std::size_t end) const;
    [[nodiscard]] std::size_t endOfChunk();
    void takePiece(std::size_t chunkStart, std::size_t chunkEnd);
    [[nodiscard]] bool takeSpecialForm(std::size_t chunkStart, std::size_t chunkEnd);
    [[nodiscard]] bool takeToken(std::size_t length, TokenKind kind, bool isFixed);
    [[nodiscard]] bool takeApostrophe(std::string_view rest, bool startsChunk);
    void takeUnit(const Unit& unit, std::size_t chunkEnd);
    void takeWord(std::size_t end);
    void takeFigure(std::size_t end);
    void takeStem(std::size_t end);
    [[nodiscard]] std::string_view wordAfterSpace(std::size_t at) const;
    void takeJoinedWords(std::size_t chunkEnd);
    void takeMarks(std::size_t chunkEnd, TokenKind kind);

    const Characters& characters_;
    DictionaryBreaker dictionary_;
    std::string_view paragraph_;
    std::size_t offset_ = 0;
    std::size_t at_ = 0; ///< the first byte that is in no token yet
    bool plain_ = false; ///< the chunk holds letters only
    bool hasAddressMark_ = false;
    Conventions conventions_;
    std::optional<ChunkReviser> reviser_; ///< where something has been learnt
    const LearnedSegmentation* learned_ = nullptr;
    std::vector<RuleToken> pieces_; ///< of the chunk at hand
    std::vector<Token>* tokens_ = nullptr;
};

} // namespace lexiform::linguistics
