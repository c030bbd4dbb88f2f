#include "tools/train/Lines.h"

namespace lexiform::train {

std::vector<std::string_view> partsOf(std::string_view line, char separator) {
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t end = line.find(separator);
        parts.push_back(line.substr(0, end));
        if (end == std::string_view::npos) return parts;
        line.remove_prefix(end + 1);
    }
}

} // namespace lexiform::train
