#pragma once

#include "linguistics/lemmas/LemmaFeatures.h"
#include "linguistics/lemmas/LemmaRule.h"
#include "tools/train/corpora/Corpus.h"

#include <compare>
#include <map>
#include <string>
#include <vector>

namespace lexiform::train {

/// How often a rule or a casing gave a word's lemma; fractions where a corpus counts less than others.
template <typename Choice>
using ChoiceCounts = std::map<Choice, double>;

/// The choice that counts most; of equals the first. There must be one.
template <typename Choice>
[[nodiscard]] const Choice& mostOf(const ChoiceCounts<Choice>& counts) {
    auto best = counts.begin();
    for (auto at = counts.begin(); at != counts.end(); ++at)
        if (at->second > best->second) best = at;
    return best->first;
}

struct WordKey {
    std::string form;
    linguistics::UniversalPos pos = linguistics::UniversalPos::X;
    // NOLINTNEXTLINE(modernize-use-nullptr): the check takes the zero of a comparison for a pointer
    auto operator<=>(const WordKey&) const = default;
};

struct PlacedWordKey {
    WordKey word;
    linguistics::WordPlace place = linguistics::WordPlace::within;
    // NOLINTNEXTLINE(modernize-use-nullptr): the check takes the zero of a comparison for a pointer
    auto operator<=>(const PlacedWordKey&) const = default;
};

/// What annotated texts tell of the lemmas of words.
class LemmaCounts {
public:
    explicit LemmaCounts(linguistics::CaseRules rules) : caseRules_(rules) {}

    /// Counts every word of `corpus` that has a tag and a lemma; each counts `weight`.
    void add(const Corpus& corpus, double weight);

    /// Lemmas by word in lower case.
    using Lexicon = std::map<WordKey, std::string>;

    /// Counts the words of `corpus`, which has no lemmas, with their lemmas in `lexicon`; a word that it does
    /// not have is its own lemma.
    void addByLexicon(const Corpus& corpus, const Lexicon& lexicon);

    [[nodiscard]] linguistics::CaseRules caseRules() const { return caseRules_; }
    [[nodiscard]] const std::map<WordKey, ChoiceCounts<linguistics::LemmaRule>>& rules() const {
        return rules_;
    }
    [[nodiscard]] const std::map<PlacedWordKey, ChoiceCounts<linguistics::LemmaCasing>>& casings() const {
        return casings_;
    }

private:
    linguistics::CaseRules caseRules_;
    std::map<WordKey, ChoiceCounts<linguistics::LemmaRule>> rules_;
    std::map<PlacedWordKey, ChoiceCounts<linguistics::LemmaCasing>> casings_;
};

/// The words of a sentence with their tags; X where the corpus has none. They refer to `sentence`.
[[nodiscard]] std::vector<linguistics::TaggedWord> taggedWordsOf(const GoldSentence& sentence);

/// `form` in lower case, as the features see it.
[[nodiscard]] std::string foldedForm(std::string_view form, linguistics::CaseRules rules);

} // namespace lexiform::train
