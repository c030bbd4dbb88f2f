#include "document/package/partName.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace lexiform::document {

namespace {

std::string_view folderOf(std::string_view part) {
    const std::size_t slash = part.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : part.substr(0, slash);
}

void step(std::string_view piece, std::string& path) {
    if (piece.empty() || piece == ".") return;
    if (piece == "..") {
        path = std::string(folderOf(path));
        return;
    }
    if (!path.empty()) path += '/';
    path += piece;
}

} // namespace

std::string partName(std::string_view from, std::string_view target) {
    std::string path = target.starts_with('/') ? std::string() : std::string(folderOf(from));
    while (!target.empty()) {
        const std::size_t end = std::min(target.find('/'), target.size());
        step(target.substr(0, end), path);
        target.remove_prefix(std::min(end + 1, target.size()));
    }
    return path;
}

std::string unescapedAddress(std::string_view address) {
    address = address.substr(0, address.find('#'));
    std::string result;
    for (std::size_t at = 0; at < address.size(); ++at) {
        unsigned char byte = 0;
        const std::string_view digits = address.substr(at + 1, 2);
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
        const bool isEscape = address[at] == '%' && digits.size() == 2 && read.ptr == digits.data() + 2;
        result += isEscape ? static_cast<char>(byte) : address[at];
        if (isEscape) at += 2;
    }
    return result;
}

} // namespace lexiform::document
