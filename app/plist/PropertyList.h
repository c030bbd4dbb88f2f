#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace lexiform {

/// A moment, in seconds since the start of 2001 in UTC; always finite.
struct PropertyDate {
    double seconds = 0;

    bool operator==(const PropertyDate&) const = default;
};

/// Bytes that are no text.
struct PropertyData {
    std::string bytes;

    bool operator==(const PropertyData&) const = default;
};

/// A property list, or one value in it. Its strings and keys are UTF-8.
struct PropertyList {
    using Array = std::vector<PropertyList>;
    using Dictionary = std::map<std::string, PropertyList, std::less<>>;
    using Value =
        std::variant<bool, std::int64_t, double, PropertyDate, std::string, PropertyData, Array, Dictionary>;

    // Not inline: GCC 12 takes the values that a variant does not hold for uninitialised ones.
    PropertyList(Value given);
    PropertyList(const PropertyList& other);
    PropertyList(PropertyList&& other) noexcept;
    PropertyList& operator=(const PropertyList& other);
    PropertyList& operator=(PropertyList&& other) noexcept;
    ~PropertyList();

    Value value;

    bool operator==(const PropertyList&) const = default;
};

} // namespace lexiform
