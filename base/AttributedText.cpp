#include "base/AttributedText.h"

#include <algorithm>
#include <utility>

namespace lexiform {

AttributedText::AttributedText(std::string text, Colour colour) : string_(std::move(text)) {
    if (!string_.empty()) runs_.push_back({string_.size(), colour});
}

void AttributedText::reserve(std::size_t bytes) {
    // A word and the space behind it are hardly ever shorter; room that is never written takes no memory.
    constexpr std::size_t bytesOfRun = 2;
    // More than a machine might promise to a text of a gigabyte.
    constexpr std::size_t mostRuns = std::size_t{16} << 20;
    string_.reserve(bytes);
    runs_.reserve(std::min(bytes / bytesOfRun, mostRuns));
}

void AttributedText::append(std::string_view piece, Colour colour) {
    if (piece.empty()) return;
    string_.append(piece);
    extend(string_.size(), colour);
}

void AttributedText::append(const AttributedText& other) {
    const std::size_t base = string_.size();
    // Appending a text to itself must read the runs as they were before.
    const std::vector<Run> added = other.runs_;
    string_.append(other.string_);
    for (const Run& run : added)
        extend(base + run.end, run.colour);
}

void AttributedText::extend(std::size_t end, Colour colour) {
    if (!runs_.empty() && runs_.back().colour == colour)
        runs_.back().end = end;
    else
        runs_.push_back({end, colour});
}

} // namespace lexiform
