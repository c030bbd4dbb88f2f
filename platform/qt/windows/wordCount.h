#pragma once

#include "analysis/ViewController.h"

#include <cstdint>

namespace lexiform::qt {

/// How many words the lexical pass last counted into the dictionaries of their classes.
[[nodiscard]] std::int64_t wordCount(const ViewController& controller);

} // namespace lexiform::qt
