#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lexiform {

/// The current user's persistent preferences, shared by all windows. What is stored lasts across runs.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// The string under `key`; nothing when there is none.
    [[nodiscard]] virtual std::optional<std::string> stringForKey(std::string_view key) const = 0;
    virtual void setString(std::string_view value, std::string_view key) = 0;
    /// False when there is none.
    [[nodiscard]] virtual bool boolForKey(std::string_view key) const = 0;
    virtual void setBool(bool value, std::string_view key) = 0;
    /// 0 when there is none or it is no number.
    [[nodiscard]] virtual double doubleForKey(std::string_view key) const = 0;
    virtual void setDouble(double value, std::string_view key) = 0;
};

} // namespace lexiform
