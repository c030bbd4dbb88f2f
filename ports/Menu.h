#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lexiform {

/// A command in a menu, or a line that only tells something.
class MenuItem {
public:
    enum class State : std::uint8_t { off, on };

    virtual ~MenuItem() = default;

    /// `on` bears a check mark.
    virtual void setState(State state) = 0;
    virtual void setTitle(const std::string& title) = 0;
};

/// A menu of the application.
class Menu {
public:
    virtual ~Menu() = default;

    /// The first item with exactly this title; null when there is none. Valid until the menu changes.
    [[nodiscard]] virtual MenuItem* itemWithTitle(std::string_view title) = 0;
};

} // namespace lexiform
