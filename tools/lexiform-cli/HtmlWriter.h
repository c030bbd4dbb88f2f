#pragma once

#include "base/Colour.h"
#include "tools/lexiform-cli/TokenWriter.h"

#include <optional>

namespace lexiform::cli {

/// The text itself, every token in the colour of its class, as the inside of a preformatted element in
/// HTML. Control characters, which HTML does not have, become U+FFFD.
class HtmlWriter : public TokenWriter {
public:
    void paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& out) override;
    void endBlock(Piece& out) override { switchTo(Colour::text, out.text); }

private:
    void switchTo(Colour colour, std::string& out);

    Colour current_ = Colour::text;
};

/// All texts, one behind the other, are one page in UTF-8.
class HtmlFormat : public TokenFormat {
public:
    [[nodiscard]] std::string start() const override;
    [[nodiscard]] std::string end() const override { return "</pre>\n</body>\n</html>\n"; }
    [[nodiscard]] linguistics::Depth depth() const override { return linguistics::Depth::classes; }
    [[nodiscard]] std::unique_ptr<TokenWriter> writer() const override {
        return std::make_unique<HtmlWriter>();
    }
};

} // namespace lexiform::cli
