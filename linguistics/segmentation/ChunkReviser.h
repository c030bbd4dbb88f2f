#pragma once

#include "linguistics/segmentation/BoundaryFeatures.h"

#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// Cuts a chunk anew by what has been learnt of a language, starting from the tokens of the rules.
class ChunkReviser {
public:
    ChunkReviser(const Characters& characters, std::string_view paragraph, const LearnedSegmentation& learned)
        : atomiser_(characters, paragraph, learned), characters_(characters), paragraph_(paragraph),
          learned_(learned) {}

    /// Whether the letters `word` end like one that may be two tokens.
    [[nodiscard]] bool mayPart(std::string_view word) const { return ChunkAtoms::mayPart(word, learned_); }

    /// Replaces the tokens of the rules for the chunk that starts at byte `start` of the paragraph.
    void revise(std::size_t start, std::vector<RuleToken>& tokens);

private:
    [[nodiscard]] bool endsToken(std::size_t last, const OpenToken& token);
    [[nodiscard]] bool isPlain(std::size_t last) const;
    [[nodiscard]] ChunkSurroundings surroundings(std::size_t start, std::size_t end) const;
    [[nodiscard]] TokenKind kindOf(std::size_t first, std::size_t last, TokenKind ruleKind) const;

    ChunkAtoms atomiser_;
    const Characters& characters_;
    std::string_view paragraph_;
    const LearnedSegmentation& learned_;
    std::vector<Atom> atoms_;
    std::vector<RuleToken> revised_;
    ChunkSurroundings around_;
    bool aroundIsKnown_ = false;
    FeatureList features_;
};

} // namespace lexiform::linguistics
