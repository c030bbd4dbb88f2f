#pragma once

#include "linguistics/Analysis.h"

namespace lexiform::cli {

/// Whether a token is white space, which the tables of tokens leave out.
[[nodiscard]] inline bool isBlank(const linguistics::Token& token) {
    return token.kind == linguistics::TokenKind::whitespace ||
           token.kind == linguistics::TokenKind::lineBreak;
}

} // namespace lexiform::cli
