#pragma once

#include "ports/TextStorage.h"

#include <string>

namespace lexiform {

/// A pane that shows a text.
class TextPane {
public:
    virtual ~TextPane() = default;

    /// The pane's characters as UTF-8, exactly those that it was given or that were typed into it.
    [[nodiscard]] virtual std::string plainText() const = 0;
    /// Owned by the pane; null for a pane without one, which then silently receives nothing.
    [[nodiscard]] virtual TextStorage* textStorage() = 0;
};

} // namespace lexiform
