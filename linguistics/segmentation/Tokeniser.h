#pragma once

#include "linguistics/segmentation/ChunkCutter.h"
#include "linguistics/segmentation/ChunkReviser.h"
#include "linguistics/segmentation/Conventions.h"
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
    void emitPieces();
    void emitWord(std::size_t end);

    void takeSpaces();
    void takeChunk();
    [[nodiscard]] Chunk nextChunk() const;
    [[nodiscard]] bool endsPlainly(const Chunk& chunk) const;

    const Characters& characters_;
    ChunkCutter cutter_;
    std::string_view paragraph_;
    std::size_t offset_ = 0;
    std::size_t at_ = 0; ///< the first byte that is in no token yet
    Conventions conventions_;
    std::optional<ChunkReviser> reviser_; ///< where something has been learnt
    std::vector<RuleToken> pieces_;       ///< of the chunk at hand
    std::vector<Token>* tokens_ = nullptr;
};

} // namespace lexiform::linguistics
