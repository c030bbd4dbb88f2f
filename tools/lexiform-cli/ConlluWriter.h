#pragma once

#include "tools/lexiform-cli/TokenWriter.h"

#include <cstddef>
#include <string>

namespace lexiform::cli {

/// CoNLL-U (Universal Dependencies v2). White space is kept in the last column: SpaceAfter=No where
/// there is none, SpacesAfter and SpacesBefore where it is not one blank, with \s, \t, \r, \n for the
/// usual white space and \uXXXX for any other. So the text can be had back byte for byte. There too stand
/// the token's language and script where they can be told, as Lang and Script.
class ConlluWriter : public TokenWriter {
public:
    void paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& out) override;
    void endBlock(Piece& out) override;

private:
    void startSentence(const linguistics::Paragraph& paragraph, std::size_t first, std::string_view text,
                       Piece& out);
    void addRow(const linguistics::Token& token, std::string_view text);
    void finishRow(std::string& out);

    std::size_t wordInSentence_ = 0;
    bool paragraphPending_ = false;
    /// A token's columns but the last, which waits for the white space behind the token.
    std::string row_;
    std::string_view language_, script_; ///< of that token
    std::string spaceBefore_;
    std::string spaceAfter_;
};

class ConlluFormat : public TokenFormat {
public:
    [[nodiscard]] std::string startText(std::string_view name, bool first) const override;
    [[nodiscard]] std::unique_ptr<TokenWriter> writer() const override {
        return std::make_unique<ConlluWriter>();
    }
};

} // namespace lexiform::cli
