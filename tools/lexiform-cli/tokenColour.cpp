#include "tools/lexiform-cli/tokenColour.h"

#include "analysis/ClassTable.h"
#include "platform/linguistics/LexicalTags.h"

namespace lexiform::cli {

Colour tokenColour(const linguistics::Token& token, std::string_view text) {
    return classRow(nameTypeOrLexicalClass(token, text)).colour;
}

} // namespace lexiform::cli
