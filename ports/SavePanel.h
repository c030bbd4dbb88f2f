#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace lexiform {

/// Asks a person where a file is to be saved. A panel is used once.
class SavePanel {
public:
    /// How a panel was closed.
    enum class Response : int { cancel = 0, ok = 1 };

    virtual ~SavePanel() = default;

    virtual void setCanCreateDirectories(bool allowed) = 0;
    /// The extensions that a file may have, without dots, the usual one first.
    virtual void setAllowedFileTypes(std::span<const std::string_view> extensions) = 0;
    virtual void setNameFieldStringValue(const std::string& name) = 0;

    /// Shows the panel as a window of its own and returns at once. `completion` is called once, on
    /// the main thread, when the person has closed the panel, and is then let go.
    virtual void begin(std::function<void(Response)> completion) = 0;

    /// The path that was chosen; nothing before the panel is closed or when none was.
    [[nodiscard]] virtual std::optional<std::string> url() const = 0;
};

} // namespace lexiform
