#include "document/rtf/RtfColours.h"

#include <algorithm>

namespace lexiform::document {

namespace {

constexpr int classColours = static_cast<int>(Colour::text);

std::uint8_t part(std::int32_t value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

Colour colourWithValue(Rgb value) {
    for (int number = 0; number < classColours; ++number)
        if (lightValue(static_cast<Colour>(number)) == value) return static_cast<Colour>(number);
    return Colour::text;
}

} // namespace

void RtfColours::setRed(std::int32_t value) {
    entry().red = part(value);
}

void RtfColours::setGreen(std::int32_t value) {
    entry().green = part(value);
}

void RtfColours::setBlue(std::int32_t value) {
    entry().blue = part(value);
}

void RtfColours::endEntries(std::string_view text) {
    for (auto ends = std::count(text.begin(), text.end(), ';'); ends > 0; --ends) {
        colours_.push_back(entry_ ? colourWithValue(*entry_) : Colour::text);
        entry_.reset();
    }
}

Colour RtfColours::colourOf(std::int32_t number) const {
    const auto place = static_cast<std::size_t>(number);
    return number >= 0 && place < colours_.size() ? colours_[place] : Colour::text;
}

Rgb& RtfColours::entry() {
    if (!entry_) entry_.emplace();
    return *entry_;
}

std::string rtfColourTable() {
    std::string table = "{\\colortbl;";
    for (int number = 0; number < classColours; ++number) {
        const Rgb value = lightValue(static_cast<Colour>(number));
        table += "\\red" + std::to_string(value.red) + "\\green" + std::to_string(value.green) + "\\blue" +
                 std::to_string(value.blue) + ";";
    }
    return table + "}";
}

int rtfColourNumber(Colour colour) {
    return colour == Colour::text ? 0 : static_cast<int>(colour) + 1;
}

} // namespace lexiform::document
