#pragma once

#include "linguistics/segmentation/ChunkAtoms.h"
#include "linguistics/segmentation/Conventions.h"
#include "linguistics/segmentation/DictionaryBreaker.h"
#include "linguistics/segmentation/LearnedSegmentation.h"
#include "linguistics/text/Characters.h"
#include "linguistics/text/Unit.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// A stretch of a paragraph without white space.
struct Chunk {
    std::size_t start = 0, end = 0; ///< bytes of the paragraph
    bool isPlain = true;            ///< it holds letters only
    bool hasAddressMark = false;    ///< one of the marks of addresses is in it

    [[nodiscard]] std::size_t size() const { return end - start; }
};

/// Cuts chunks into tokens by the rules of a language.
class ChunkCutter {
public:
    explicit ChunkCutter(const Characters& characters) : characters_(characters) {}

    /// Takes a paragraph up. It must stay as it is until the next, as must `learned`, which may be null.
    void start(std::string_view paragraph, Conventions conventions, const LearnedSegmentation* learned);

    /// Replaces `tokens` by those of a chunk of the paragraph.
    void cut(const Chunk& chunk, std::vector<RuleToken>& tokens);

private:
    [[nodiscard]] Unit unit(std::size_t at) const { return unitAt(characters_, paragraph_, at); }
    void put(std::size_t end, TokenKind kind, bool isFixed = false);
    void takePiece();
    [[nodiscard]] bool takeSpecialForm();
    [[nodiscard]] bool takeToken(std::size_t length, TokenKind kind, bool isFixed);
    [[nodiscard]] bool takeApostrophe(std::string_view rest, bool startsChunk);
    void takeUnit(const Unit& unit);
    void takeMarks(TokenKind kind);
    void takeWord(std::size_t end);
    void takeFigure(std::size_t end);
    void takeEnglishWord(std::size_t end);
    void takeEnglishStem(std::size_t end);
    [[nodiscard]] std::string_view wordAfterSpace(std::size_t at) const;
    void takeFrenchWord(std::size_t end);
    void takeJoinedWords();

    const Characters& characters_;
    DictionaryBreaker dictionary_;
    std::string_view paragraph_;
    Conventions conventions_;
    const LearnedSegmentation* learned_ = nullptr;
    Chunk chunk_;
    std::size_t at_ = 0; ///< the first byte of the chunk that is in no token yet
    std::vector<RuleToken>* tokens_ = nullptr;
};

} // namespace lexiform::linguistics
