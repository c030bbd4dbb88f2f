#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace lexiform {

/// What the multi-scheme pass knows of one token. Script, language and type are positions in the
/// lists of distinct values `indScripts`, `indLangs` and `indTypes` of the window's controller.
struct tagComplex {
    /// Absent when the record carries no text.
    std::optional<std::string> word{};
    std::int64_t script = 0;
    std::int64_t lang = 0;
    std::int64_t type = 0;
    /// Absent when the tagger gives none.
    std::optional<std::string> lemma{};

    bool operator==(const tagComplex&) const = default;
};

} // namespace lexiform
