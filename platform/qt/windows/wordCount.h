#pragma once

#include "analysis/ViewController.h"

#include <cstdint>

namespace lexiform::qt {

/// How many words the lexical pass last counted into the dictionaries of their classes.
[[nodiscard]] std::int64_t wordCount(const ViewController& controller);

/// How many words of those classes the multi-scheme pass last found.
[[nodiscard]] std::int64_t recordedWordCount(const ViewController& controller);

} // namespace lexiform::qt
