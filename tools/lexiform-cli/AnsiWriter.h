#pragma once

#include "base/Colour.h"
#include "tools/lexiform-cli/TokenWriter.h"

#include <optional>

namespace lexiform::cli {

/// The text itself, every token in the colour of its class, for a terminal. Control characters other
/// than tabs and line ends are shown as pictures, so that a text cannot steer the terminal.
class AnsiWriter : public TokenWriter {
public:
    void paragraph(const linguistics::Paragraph& paragraph, std::string_view text, std::string& out) override;
    void endText(std::string& out) override;

private:
    void switchTo(Colour colour, std::string& out);

    std::optional<Colour> current_;
};

/// The nine classes on one line, each in its colour.
[[nodiscard]] std::string ansiKey();

} // namespace lexiform::cli
