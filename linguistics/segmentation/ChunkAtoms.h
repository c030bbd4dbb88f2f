#pragma once

#include "linguistics/segmentation/LearnedSegmentation.h"
#include "linguistics/text/Analysis.h"
#include "linguistics/text/Characters.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// A smallest piece of a chunk that a token may consist of.
struct Atom {
    enum class Kind : std::uint8_t { none, letters, digits, mark, fixed };

    std::size_t start = 0, end = 0; ///< bytes of the paragraph
    Kind kind = Kind::none;
    bool ruleEnds = false;   ///< the rules end a token here
    bool mayPart = false;    ///< it ends inside a word that may be two tokens
    std::uint32_t shape = 0; ///< case and length of letters, length of digits, the mark itself
    std::uint32_t hash = 0;  ///< of the lower-case spelling

    [[nodiscard]] bool isWord() const { return kind == Kind::letters || kind == Kind::digits; }
};

/// A token as the rules cut it, by the byte of the paragraph after it.
struct RuleToken {
    std::size_t end = 0;
    TokenKind kind = TokenKind::word;
    bool isFixed = false; ///< an address, an emoticon: neither cut nor joined to anything
};

/// The shape of a run of letters: its case, and whether it is one letter or few.
[[nodiscard]] std::uint32_t shapeOfLetters(std::string_view letters);

/// Cuts chunks, stretches without white space, into atoms: runs of letters, of digits and of one mark,
/// parted where the rules end tokens and where a learnt ending starts ("can|not").
class ChunkAtoms {
public:
    /// Reads `paragraph`, which must outlive it, as must `learned`.
    ChunkAtoms(const Characters& characters, std::string_view paragraph, const LearnedSegmentation& learned)
        : characters_(characters), text_(paragraph), learned_(learned) {}

    /// Replaces `atoms` by those of the chunk that starts at byte `start` and consists of `tokens`.
    void read(std::size_t start, std::span<const RuleToken> tokens, std::vector<Atom>& atoms) const;

    /// Whether the letters `word` end like one that may be two tokens.
    [[nodiscard]] static bool mayPart(std::string_view word, const LearnedSegmentation& learned);

private:
    void readToken(std::size_t start, std::size_t end, std::vector<Atom>& atoms) const;
    void put(std::size_t start, std::size_t end, Atom::Kind kind, char32_t mark,
             std::vector<Atom>& atoms) const;
    void putLetters(std::size_t start, std::size_t end, std::vector<Atom>& atoms) const;
    [[nodiscard]] std::size_t lengthOfEnding(std::size_t start, std::size_t end) const;

    const Characters& characters_;
    std::string_view text_;
    const LearnedSegmentation& learned_;
};

} // namespace lexiform::linguistics
