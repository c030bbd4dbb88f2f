#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// For each line break of a paragraph, in order: whether it only wraps the line, so that the sentence
/// goes on. Told from whether the next line's first word would still have fitted on the line, from
/// the line's length and from how the next line starts; titles, lists, verse and short lines of
/// dialogue do not wrap.
[[nodiscard]] std::vector<bool> wrappingLineBreaks(std::string_view paragraph);

/// The line breaks of one paragraph, looked at when the first is asked for.
class LineBreaks {
public:
    /// Those of `paragraph`, which must outlive it.
    explicit LineBreaks(std::string_view paragraph) : paragraph_(paragraph) {}

    /// Whether the line break of index `i` only wraps the line; it must be one of the paragraph's.
    [[nodiscard]] bool wraps(std::size_t i) {
        if (wrapping_.empty()) wrapping_ = wrappingLineBreaks(paragraph_);
        return wrapping_[i];
    }

private:
    std::string_view paragraph_;
    std::vector<bool> wrapping_;
};

} // namespace lexiform::linguistics
