#pragma once

#include "app/plist/PropertyList.h"
#include "app/plist/TextScanner.h"
#include "app/plist/limits.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace lexiform::plist {

/// Reads the values of a list in the old text form, each function from the place where the one before it
/// ended.
class TextReader {
public:
    explicit TextReader(std::string_view text) : scanner_(text) {}

    /// The one value that the whole text is.
    [[nodiscard]] std::optional<PropertyList> read();

private:
    [[nodiscard]] std::optional<PropertyList> value(std::size_t depth);
    [[nodiscard]] std::optional<PropertyList> array(std::size_t depth);
    [[nodiscard]] std::optional<PropertyList> dictionary(std::size_t depth);
    [[nodiscard]] std::optional<PropertyList> data();
    /// Steps over a sign and the space before it.
    [[nodiscard]] bool takeSign(char sign);

    TextScanner scanner_;
    Budget budget_;
};

} // namespace lexiform::plist
