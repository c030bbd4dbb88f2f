#include "tools/train/network/Vocabulary.h"

#include <algorithm>
#include <utility>

namespace lexiform::train {

using namespace linguistics;

namespace {

// A word of annotated text counts as much as this many of open text.
constexpr std::uint64_t annotatedWorth = 25;
// Words met less often learn nothing that their affixes do not tell.
constexpr std::uint64_t leastWorth = 20;

std::uint64_t worthOf(const FormCounts::Count& count) {
    return annotatedWorth * count.annotated + count.open;
}

std::vector<std::string> mostWorth(const FormCounts& counts, std::size_t most) {
    std::vector<std::pair<std::uint64_t, std::string>> ordered;
    for (const auto& [word, count] : counts.words())
        if (const std::uint64_t worth = worthOf(count); worth >= leastWorth && !word.empty())
            ordered.emplace_back(worth, word);
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    if (ordered.size() > most) ordered.resize(most);
    std::vector<std::string> words;
    words.reserve(ordered.size());
    for (auto& [worth, word] : ordered)
        words.push_back(std::move(word));
    return words;
}

} // namespace

FormCounts::FormCounts(const FormTable& forms, const std::vector<std::uint32_t>& annotated,
                       const std::vector<std::uint32_t>& open) {
    for (std::size_t form = 0; form < forms.size(); ++form) {
        Count& count = words_[normalForm(forms.forms()[form])];
        if (form < annotated.size()) count.annotated += annotated[form];
        if (form < open.size()) count.open += open[form];
    }
}

Vocabulary::Vocabulary(const FormCounts& counts, const Lexicon& lexicon, std::size_t most) {
    for (const auto& [word, entry] : lexicon)
        if (entry.ambiguity != 0 || entry.lists != 0)
            entries_[word] = {unknownRow, entry.ambiguity, entry.lists};
    std::uint16_t row = firstWordRow;
    for (const std::string& word : mostWorth(counts, std::min<std::size_t>(most, 65535 - firstWordRow)))
        entries_[word].row = row++;
    rowCount_ = row;
}

NetworkEntry Vocabulary::find(const std::string& normal) const {
    const auto found = entries_.find(normal);
    return found == entries_.end() ? NetworkEntry{} : found->second;
}

std::vector<SeenForm> Vocabulary::seen(const FormTable& forms, const FormCounts& counts,
                                       const RowLayout& layout) const {
    std::vector<SeenForm> seen;
    seen.reserve(forms.size());
    for (const std::string& form : forms.forms()) {
        const std::string normal = normalForm(form);
        const auto count = counts.words().find(normal);
        seen.push_back({rowsOf(form, find(normal), layout),
                        count == counts.words().end() ? 0 : count->second.annotated});
    }
    return seen;
}

} // namespace lexiform::train
