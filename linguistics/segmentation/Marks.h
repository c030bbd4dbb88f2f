#pragma once

#include "linguistics/text/Analysis.h"
#include "linguistics/text/Unit.h"

namespace lexiform::linguistics {

/// Whether a unit that is no part of a word is punctuation, or a symbol that stands for a word or a quantity.
[[nodiscard]] TokenKind kindOfMark(const Unit& unit);

/// Whether `mark` and others after it may be one token ("...", "--").
[[nodiscard]] bool mayRepeat(char32_t mark);

/// Whether `next` belongs to the token of marks that starts with `first` ("?!", "--").
[[nodiscard]] bool continuesRun(char32_t first, char32_t next);

} // namespace lexiform::linguistics
