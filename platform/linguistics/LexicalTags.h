#pragma once

#include "linguistics/text/Analysis.h"

#include <string_view>

namespace lexiform {

/// The tag of an analysed token under the scheme `NLTagSchemeNameTypeOrLexicalClass`: the type of the
/// name that it belongs to, or else its lexical class, or else the kind of its mark or white space.
/// Every token has one. `text` is the text that was analysed; `token` a token of it.
[[nodiscard]] std::string_view nameTypeOrLexicalClass(const linguistics::Token& token, std::string_view text);

} // namespace lexiform
