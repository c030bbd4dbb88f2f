#pragma once

#include "base/AttributedText.h"

#include <QStringView>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace lexiform::qt {

/// The colours of a text without the text: one run after the other, in a third of the room.
class ColourRuns {
public:
    /// Called with a stretch of one colour, counted in UTF-16 units.
    using Visitor = std::function<void(qsizetype start, qsizetype length, Colour colour)>;

    void clear();
    /// Adds the colours of a text that is added at the end.
    void append(const AttributedText& text);

    /// The text that these are the colours of, `text` being its characters as UTF-8, with them.
    [[nodiscard]] AttributedText coloured(std::string_view text) const;

    /// Visits the colours of `text`, which starts at the byte `start` of the whole.
    void visit(std::size_t start, QStringView text, const Visitor& visitor) const;

private:
    // Four bytes do for an offset in bytes: no more than 1 GiB of UTF-8 is read from a file.
    std::vector<std::uint32_t> ends_;
    std::vector<Colour> colours_;
};

} // namespace lexiform::qt
