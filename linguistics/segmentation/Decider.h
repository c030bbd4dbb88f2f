#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace lexiform::linguistics {

/// Answers one kind of yes-or-no question about places in a paragraph: whether a token ends there,
/// whether a sentence does. A trained classifier answers by the features; a teacher, by the annotation.
class Decider {
public:
    virtual ~Decider() = default;

    /// The answer for byte `at` of the paragraph.
    [[nodiscard]] virtual bool decide(std::size_t at, std::span<const std::uint32_t> features) const = 0;
};

} // namespace lexiform::linguistics
