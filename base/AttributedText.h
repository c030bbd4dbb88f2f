#pragma once

#include "base/Colour.h"
#include "base/TextRange.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform {

/// A text with a foreground colour on every character: a string and the runs of one colour that
/// cover it without gaps. Adjacent runs differ in colour, and none is empty.
class AttributedText {
public:
    /// The bytes from the end of the run before (0 for the first) up to `end`, in one colour.
    struct Run {
        std::size_t end = 0;
        Colour colour = Colour::text;
        bool operator==(const Run&) const = default;
    };

    AttributedText() = default;
    /// The whole of `text` in one colour.
    AttributedText(std::string text, Colour colour);

    /// Makes room for a text of `bytes` in the colours of its words.
    void reserve(std::size_t bytes);
    /// Appends `piece` in one colour; amortised constant time per byte. An empty piece changes nothing.
    void append(std::string_view piece, Colour colour);
    /// Appends a text with its colours.
    void append(const AttributedText& other);

    [[nodiscard]] const std::string& string() const { return string_; }
    /// In text order; empty for an empty text.
    [[nodiscard]] const std::vector<Run>& runs() const { return runs_; }
    [[nodiscard]] bool empty() const { return string_.empty(); }

    bool operator==(const AttributedText&) const = default;

private:
    void extend(std::size_t end, Colour colour);

    std::string string_;
    std::vector<Run> runs_;
};

} // namespace lexiform
