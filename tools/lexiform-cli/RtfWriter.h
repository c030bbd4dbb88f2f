#pragma once

#include "document/rtf/RtfWriter.h"
#include "tools/lexiform-cli/TokenWriter.h"

namespace lexiform::cli {

/// The text itself, every token in the colour of its class, in RTF.
class RtfWriter : public TokenWriter {
public:
    void paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& out) override;
};

/// All texts, one behind the other, are one RTF file.
class RtfFormat : public TokenFormat {
public:
    [[nodiscard]] std::string start() const override { return document::rtfHead(); }
    [[nodiscard]] std::string end() const override { return std::string(document::rtfTail); }
    [[nodiscard]] linguistics::Depth depth() const override { return linguistics::Depth::classes; }
    [[nodiscard]] std::unique_ptr<TokenWriter> writer() const override {
        return std::make_unique<RtfWriter>();
    }
};

} // namespace lexiform::cli
