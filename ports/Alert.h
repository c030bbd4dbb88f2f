#pragma once

#include <cstdint>
#include <string>

namespace lexiform {

/// A message that waits for an answer. An alert is used once.
class Alert {
public:
    enum class Style : std::uint8_t { warning, informational, critical };
    /// The button that was pressed, in the order in which they were added. A closed alert answers as its
    /// first button does.
    enum class Response : std::uint8_t { firstButton, secondButton, thirdButton };

    virtual ~Alert() = default;

    /// Texts are plain, with \n for a line break.
    virtual void setMessageText(const std::string& text) = 0;
    virtual void setInformativeText(const std::string& text) = 0;
    virtual void setAlertStyle(Style style) = 0;
    /// Up to three; the first one is what Return presses.
    virtual void addButton(const std::string& title) = 0;
    /// Shows the alert and returns when it has been answered. Events go on meanwhile.
    virtual Response runModal() = 0;
};

} // namespace lexiform
