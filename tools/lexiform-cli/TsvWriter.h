#pragma once

#include "tools/lexiform-cli/TokenWriter.h"

namespace lexiform::cli {

/// A table with a heading, one token a line, columns parted by tabs, white space left out. Sentences
/// are numbered from 1; a token's start and length count bytes of its text.
class TsvWriter : public TokenWriter {
public:
    void paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& out) override;
};

class TsvFormat : public TokenFormat {
public:
    [[nodiscard]] std::string start() const override;
    [[nodiscard]] std::unique_ptr<TokenWriter> writer() const override {
        return std::make_unique<TsvWriter>();
    }
};

} // namespace lexiform::cli
