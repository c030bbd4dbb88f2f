#include "analysis/sortedLines.h"

#include "base/Unicode.h"

#include <algorithm>
#include <utility>

namespace lexiform {

namespace {

struct KeyedLine {
    std::string line;
    /// The composed form where it differs from the line; nearly all lines are composed already.
    std::string key;

    [[nodiscard]] const std::string& sortKey() const { return key.empty() ? line : key; }
};

KeyedLine keyed(std::string line) {
    std::string key = composed(line);
    if (key == line) key.clear();
    return {std::move(line), std::move(key)};
}

// The order of UTF-8 bytes is the order of scalar values.
bool precedes(const KeyedLine& a, const KeyedLine& b) {
    const int order = a.sortKey().compare(b.sortKey());
    return order != 0 ? order < 0 : a.line < b.line;
}

} // namespace

std::vector<std::string> sortedLines(std::vector<std::string> lines) {
    std::vector<KeyedLine> keyedLines;
    keyedLines.reserve(lines.size());
    for (std::string& line : lines)
        keyedLines.push_back(keyed(std::move(line)));
    std::sort(keyedLines.begin(), keyedLines.end(), precedes);
    std::transform(keyedLines.begin(), keyedLines.end(), lines.begin(),
                   [](KeyedLine& sorted) { return std::move(sorted.line); });
    return lines;
}

} // namespace lexiform
