#pragma once

#include "tools/lexiform-cli/TokenWriter.h"

#include <memory>
#include <string>
#include <string_view>

namespace lexiform::cli {

/// JSON (RFC 8259): a list of texts with "file" (null for the only one) and "paragraphs"; a paragraph
/// has "sentences", a sentence "tokens", white space left out. A token has "text", "start" and "length"
/// (bytes of its text), "lemma", "pos", "tag", "script" and "language"; what cannot be told is null.
class JsonWriter : public TokenWriter {
public:
    void paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& out) override;

private:
    bool isFirst_ = true; ///< of the block
};

class JsonFormat : public TokenFormat {
public:
    [[nodiscard]] std::string start() const override { return "["; }
    [[nodiscard]] std::string end() const override { return "]\n"; }
    [[nodiscard]] std::string startText(std::string_view name, bool first) const override;
    [[nodiscard]] std::string endText() const override { return "\n]}"; }
    [[nodiscard]] std::unique_ptr<TokenWriter> writer() const override {
        return std::make_unique<JsonWriter>();
    }
};

} // namespace lexiform::cli
