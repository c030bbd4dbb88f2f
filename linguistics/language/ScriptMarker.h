#pragma once

#include "linguistics/text/Analysis.h"

#include <span>
#include <string_view>

namespace lexiform::linguistics {

/// Sets `script` on the tokens of one paragraph, whose ranges count from the start of `text`: the
/// script of the token's first character that has one. A token of characters that scripts share
/// takes the script of the token before it, at the start of the paragraph that of the first after it.
void markScripts(std::string_view text, std::span<Token> tokens);

} // namespace lexiform::linguistics
