#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

namespace lexiform {

/// Lets a table of strings be searched without making a string of what is looked for.
struct StringHash {
    using is_transparent = void;
    [[nodiscard]] std::size_t operator()(std::string_view string) const {
        return std::hash<std::string_view>{}(string);
    }
};

} // namespace lexiform
