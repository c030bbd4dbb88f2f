#include "tools/train/lemmas/RuleFinder.h"

#include "linguistics/lemmas/LemmaFormat.h"

#include <array>
#include <string>

namespace lexiform::train {

namespace {

using namespace linguistics;

std::u32string charactersOf(const FoldedWord& word, bool lower) {
    std::u32string text;
    for (std::size_t i = 0; i < word.size(); ++i)
        text += lower ? word.lower(i) : word.original(i);
    return text;
}

/// A stretch that form and lemma share.
struct Alignment {
    std::size_t form = 0, lemma = 0, length = 0;
};

// Changes at the front are rarer than at the end, so they cost one more.
std::size_t costOf(const Alignment& common, std::size_t formSize, std::size_t lemmaSize) {
    const std::size_t front = common.form + common.lemma;
    const std::size_t end = formSize + lemmaSize - front - 2 * common.length;
    return front == 0 ? end : front + end + 1;
}

Alignment bestAlignment(const std::u32string& form, const std::u32string& lemma) {
    Alignment best;
    for (std::size_t i = 0; i < form.size(); ++i)
        for (std::size_t j = 0; j < lemma.size(); ++j) {
            Alignment common{i, j, 0};
            while (i + common.length < form.size() && j + common.length < lemma.size() &&
                   form[i + common.length] == lemma[j + common.length])
                ++common.length;
            if (common.length == 0 || (i + j > 0 && common.length < 2)) continue;
            if (best.length == 0 ||
                costOf(common, form.size(), lemma.size()) < costOf(best, form.size(), lemma.size()))
                best = common;
        }
    return best;
}

LemmaRule wholeRule(const std::u32string& lemma) {
    LemmaRule rule;
    rule.whole = true;
    rule.ending = lemma;
    return rule;
}

LemmaRule ruleOf(const std::u32string& form, const std::u32string& lemma) {
    const Alignment common = bestAlignment(form, lemma);
    if (common.length == 0) return wholeRule(lemma);
    LemmaRule rule;
    std::size_t kept = 0;
    while (kept < common.form && kept < common.lemma && form[kept] == lemma[kept])
        ++kept;
    rule.prefixKept = static_cast<std::uint8_t>(kept);
    rule.prefixDropped = static_cast<std::uint8_t>(common.form - kept);
    rule.inserted = lemma.substr(kept, common.lemma - kept);
    rule.suffixDropped = static_cast<std::uint8_t>(form.size() - common.form - common.length);
    rule.ending = lemma.substr(common.lemma + common.length);
    // What is kept before nothing is changed needs no count.
    if (rule.prefixDropped == 0 && rule.inserted.empty()) rule.prefixKept = 0;
    return rule;
}

constexpr std::array namesFirst = {LemmaCasing::lower, LemmaCasing::kept, LemmaCasing::capitalised,
                                   LemmaCasing::upper};
constexpr std::array nounsFirst = {LemmaCasing::lower, LemmaCasing::capitalised, LemmaCasing::kept,
                                   LemmaCasing::upper};

} // namespace

std::optional<FoundRule> ruleBetween(std::string_view form, std::string_view lemma, UniversalPos pos,
                                     CaseRules rules) {
    const FoldedWord word(form, rules), goal(lemma, rules);
    if (word.size() == 0 || goal.size() == 0) return std::nullopt;
    LemmaRule rule = ruleOf(charactersOf(word, true), charactersOf(goal, true));
    if (rule.inserted.size() > longestRuleText || rule.ending.size() > longestRuleText) return std::nullopt;
    const bool name = pos == UniversalPos::PROPN || pos == UniversalPos::X;
    for (const LemmaCasing casing : name ? namesFirst : nounsFirst)
        if (lemmaBy(rule, casing, word, rules) == lemma) return FoundRule{std::move(rule), casing};
    if (goal.size() > longestRuleText) return std::nullopt;
    return FoundRule{wholeRule(charactersOf(goal, false)), LemmaCasing::kept};
}

} // namespace lexiform::train
