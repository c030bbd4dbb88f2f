#pragma once

#include "base/Colour.h"
#include "base/lightValue.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::document {

/// The table of colours of an RTF file that is read.
class RtfColours {
public:
    void setRed(std::int32_t value);
    void setGreen(std::int32_t value);
    void setBlue(std::int32_t value);
    /// The text of the table: each semicolon ends an entry.
    void endEntries(std::string_view text);

    /// The colour of entry `number`; the text colour for one that is none of ours or not there.
    [[nodiscard]] Colour colourOf(std::int32_t number) const;

private:
    Rgb& entry();

    std::optional<Rgb> entry_;
    std::vector<Colour> colours_;
};

/// The table of colours of an RTF file that is written, and the number of a colour in it. The text colour
/// is "automatic", which every program shows so that it can be read.
[[nodiscard]] std::string rtfColourTable();
[[nodiscard]] int rtfColourNumber(Colour colour);

} // namespace lexiform::document
