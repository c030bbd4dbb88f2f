#pragma once

#include "base/Colour.h"
#include "tools/lexiform-cli/TokenWriter.h"

#include <optional>

namespace lexiform::cli {

/// The text itself, every token in the colour of its class, for a terminal. A text cannot steer the
/// terminal: control characters other than tabs and line ends are shown as pictures, those that turn
/// the direction of writing as U+FFFD, and a carriage return alone becomes a line feed.
class AnsiWriter : public TokenWriter {
public:
    void paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& out) override;
    void endBlock(Piece& out) override;

private:
    void switchTo(Colour colour, std::string& out);

    std::optional<Colour> current_;
};

class AnsiFormat : public TokenFormat {
public:
    [[nodiscard]] linguistics::Depth depth() const override { return linguistics::Depth::classes; }
    [[nodiscard]] std::unique_ptr<TokenWriter> writer() const override {
        return std::make_unique<AnsiWriter>();
    }
};

/// The nine classes on one line, each in its colour.
[[nodiscard]] std::string ansiKey();

} // namespace lexiform::cli
