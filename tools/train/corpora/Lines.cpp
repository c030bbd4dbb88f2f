#include "tools/train/corpora/Lines.h"

#include <fstream>
#include <iterator>

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

ReadFault eachLine(const std::filesystem::path& file, const std::function<void(std::string_view)>& take) {
    std::ifstream input(file, std::ios::binary);
    if (!input) return file.string() + ": it cannot be opened";
    for (std::string line; std::getline(input, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        take(line);
    }
    return std::nullopt;
}

ReadFault readWhole(const std::filesystem::path& file, std::string& text) {
    std::ifstream input(file, std::ios::binary);
    if (!input) return file.string() + ": it cannot be opened";
    text.assign(std::istreambuf_iterator<char>(input), {});
    return std::nullopt;
}

} // namespace lexiform::train
