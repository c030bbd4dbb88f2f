#include "tools/train/network/Examples.h"

#include <algorithm>
#include <utility>

namespace lexiform::train {

namespace {

// Longer sentences are lists or lack their ends.
constexpr std::size_t longestExample = 120;

void addToken(const GoldToken& token, bool tagged, bool named, ExampleTables& tables, Example& example) {
    example.forms.push_back(tables.forms.numberOf(token.form));
    if (named) example.names.push_back(static_cast<std::uint8_t>(token.name));
    if (!tagged) return;
    example.pos.push_back(static_cast<std::uint8_t>(*token.pos));
    example.fine.push_back(tables.fine.find(token.finePos));
    example.features.push_back(tables.features.find(token.features));
}

// A further word of a name that was cut begins one.
void repairFirst(Example& example) {
    using linguistics::NameLabel;
    if (example.names.empty()) return;
    std::uint8_t& first = example.names.front();
    if (!linguistics::mayFollow(NameLabel::outside, static_cast<NameLabel>(first))) --first;
}

} // namespace

void LabelTable::number(std::size_t least, std::size_t most) {
    std::vector<std::pair<std::size_t, std::string>> kept;
    for (const auto& [label, count] : counts_)
        if (count >= least && !label.empty() && label != "_") kept.emplace_back(count, label);
    std::stable_sort(kept.begin(), kept.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    if (kept.size() > most) kept.resize(most);
    for (const auto& [count, label] : kept)
        numbers_.emplace(label, static_cast<std::uint16_t>(numbers_.size() + 1));
}

std::uint16_t LabelTable::find(const std::string& label) const {
    const auto found = numbers_.find(label);
    return found == numbers_.end() ? std::uint16_t{0} : found->second;
}

std::vector<Example> examplesOf(const GoldSentence& sentence, float posWeight, float nameWeight,
                                ExampleTables& tables) {
    const auto& tokens = sentence.tokens;
    const bool tagged =
        posWeight > 0 && std::all_of(tokens.begin(), tokens.end(),
                                     [](const GoldToken& token) { return token.pos.has_value(); });
    const bool named = nameWeight > 0 && sentence.namesKnown;
    std::vector<Example> examples;
    for (std::size_t start = 0; start < tokens.size(); start += longestExample) {
        Example example;
        example.posWeight = posWeight;
        example.nameWeight = nameWeight;
        const std::size_t end = std::min(start + longestExample, tokens.size());
        for (std::size_t i = start; i < end; ++i)
            addToken(tokens[i], tagged, named, tables, example);
        repairFirst(example);
        examples.push_back(std::move(example));
    }
    return examples;
}

} // namespace lexiform::train
