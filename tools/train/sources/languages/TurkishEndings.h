#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lexiform::train {

/// `text` in lower case as Turkish has it: İ becomes i, I becomes ı.
[[nodiscard]] std::string turkishLower(std::string_view text);

// What running text writes to the end of a word though it is a word of its own. Each takes a form in lower
// case and gives the length of that end in bytes, 0 where there is none.

/// A copula after a noun or an adjective: "hastaydı".
[[nodiscard]] std::size_t nounCopulaIn(const std::string& form);
/// A copula after a verb that has a tense already: "gelmişti".
[[nodiscard]] std::size_t verbCopulaIn(const std::string& form);
/// The suffix -ki: "evdeki".
[[nodiscard]] std::size_t kiIn(const std::string& form);

} // namespace lexiform::train
