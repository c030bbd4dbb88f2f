#include "tools/lexiform-cli/Piece.h"

#include <string_view>

namespace lexiform::cli {

void Piece::appendTo(std::string& out, std::size_t before) const {
    const std::string_view all = text;
    std::size_t at = 0;
    for (const Number& number : numbers_) {
        out.append(all.substr(at, number.place - at)).append(std::to_string(before + number.value));
        at = number.place;
    }
    out.append(all.substr(at));
}

} // namespace lexiform::cli
