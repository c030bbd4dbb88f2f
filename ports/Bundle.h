#pragma once

#include <any>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace lexiform {

/// What a program says of itself. A text is a `std::string`.
using InfoDictionary = std::map<std::string, std::any, std::less<>>;

/// The installed program with its resources.
class Bundle {
public:
    virtual ~Bundle() = default;

    /// Nothing for a program that says nothing of itself.
    [[nodiscard]] virtual std::optional<InfoDictionary> infoDictionary() const = 0;
    /// The path of a resource; nothing when there is no such file. The extension comes without its dot.
    [[nodiscard]] virtual std::optional<std::string> urlForResource(std::string_view name,
                                                                    std::string_view extension) const = 0;
};

} // namespace lexiform
