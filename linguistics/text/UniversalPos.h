#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace lexiform::linguistics {

/// The universal parts of speech (Nivre et al. 2020, "Universal Dependencies v2").
enum class UniversalPos : std::uint8_t {
    ADJ,
    ADP,
    ADV,
    AUX,
    CCONJ,
    DET,
    INTJ,
    NOUN,
    NUM,
    PART,
    PRON,
    PROPN,
    PUNCT,
    SCONJ,
    SYM,
    VERB,
    X
};

inline constexpr std::size_t universalPosCount = 17;

/// The tag as treebanks spell it, for example "NOUN".
[[nodiscard]] std::string_view nameOf(UniversalPos pos);

/// The part of speech that a treebank spells so; nothing for any other text.
[[nodiscard]] std::optional<UniversalPos> universalPosNamed(std::string_view name);

} // namespace lexiform::linguistics
