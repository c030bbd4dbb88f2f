#pragma once

#include "base/AttributedText.h"

namespace lexiform {

/// The attributed text behind a text pane.
class TextStorage {
public:
    virtual ~TextStorage() = default;

    /// Puts `text` in the place of all that the storage holds.
    virtual void replace(const AttributedText& text) = 0;
    /// Adds `text` at the end, with nothing put between.
    virtual void append(const AttributedText& text) = 0;
    /// All that the storage holds.
    [[nodiscard]] virtual AttributedText attributedText() const = 0;
};

} // namespace lexiform
