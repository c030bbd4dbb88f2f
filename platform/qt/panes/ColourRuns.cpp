#include "platform/qt/panes/ColourRuns.h"

#include "platform/qt/panes/utf8Length.h"

#include <algorithm>

namespace lexiform::qt {

void ColourRuns::clear() {
    ends_.clear();
    colours_.clear();
}

void ColourRuns::append(const AttributedText& text) {
    const std::uint32_t base = ends_.empty() ? 0 : ends_.back();
    ends_.reserve(ends_.size() + text.runs().size());
    colours_.reserve(colours_.size() + text.runs().size());
    for (const AttributedText::Run& run : text.runs()) {
        ends_.push_back(base + static_cast<std::uint32_t>(run.end));
        colours_.push_back(run.colour);
    }
}

AttributedText ColourRuns::coloured(std::string_view text) const {
    AttributedText result;
    std::size_t start = 0;
    for (std::size_t run = 0; run < ends_.size() && start < text.size(); ++run) {
        result.append(text.substr(start, ends_[run] - start), colours_[run]);
        start = ends_[run];
    }
    return result;
}

void ColourRuns::visit(std::size_t start, QStringView text, const Visitor& visitor) const {
    auto end = std::upper_bound(ends_.begin(), ends_.end(), start);
    std::size_t byte = start;
    for (qsizetype at = 0; at < text.size() && end != ends_.end(); ++end) {
        const qsizetype begin = at;
        while (at < text.size() && byte < *end)
            byte += utf8Length(text[at++].unicode());
        if (at > begin) visitor(begin, at - begin, colours_[static_cast<std::size_t>(end - ends_.begin())]);
    }
}

} // namespace lexiform::qt
