#include "analysis/sortedLines.h"

#include "base/Unicode.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

namespace lexiform {

namespace {

/// A line by its place in the list, under what it is sorted by.
struct SortKey {
    std::string_view key;
    std::uint32_t line;
};

/// The keys of `lines`; the composed forms of the few that are not composed already go into `forms`.
std::vector<SortKey> keysOf(const std::vector<std::string>& lines, std::vector<std::string>& forms) {
    forms.reserve(lines.size()); // so that the keys may point into it
    std::vector<SortKey> keys;
    keys.reserve(lines.size());
    for (const std::string& line : lines) {
        const bool ready = isComposed(line);
        keys.push_back(
            {ready ? line : forms.emplace_back(composed(line)), static_cast<std::uint32_t>(keys.size())});
    }
    return keys;
}

} // namespace

std::vector<std::string> sortedLines(std::vector<std::string> lines) {
    std::vector<std::string> forms;
    std::vector<SortKey> keys = keysOf(lines, forms);
    // The order of UTF-8 bytes is the order of scalar values.
    std::sort(keys.begin(), keys.end(), [&lines](const SortKey& a, const SortKey& b) {
        const int order = a.key.compare(b.key);
        return order != 0 ? order < 0 : lines[a.line] < lines[b.line];
    });
    std::vector<std::string> sorted;
    sorted.reserve(lines.size());
    for (const SortKey& key : keys)
        sorted.push_back(std::move(lines[key.line]));
    return sorted;
}

} // namespace lexiform
