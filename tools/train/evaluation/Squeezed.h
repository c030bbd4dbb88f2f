#pragma once

#include "base/TextRange.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace lexiform::train {

/// The bytes of a text counted without its white space, so that two ways to cut it can be compared
/// whatever spaces stand in or between their tokens.
class Squeezed {
public:
    explicit Squeezed(std::string_view text);

    /// `range` of the text in bytes that are no white space; empty for white space alone.
    [[nodiscard]] TextRange of(TextRange range) const {
        return {before_[range.start], before_[range.end()] - before_[range.start]};
    }

private:
    std::vector<std::size_t> before_; ///< how many such bytes stand before each byte of the text
};

} // namespace lexiform::train
