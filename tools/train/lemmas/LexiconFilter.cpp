#include "tools/train/lemmas/LexiconFilter.h"

#include "linguistics/text/Hash.h"
#include "tools/train/lemmas/RuleFinder.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <unordered_set>

namespace lexiform::train {

namespace {

using namespace linguistics;

// A list agrees with the treebanks on a part of speech if it gives this share of their words their lemma.
constexpr double leastAgreement = 0.9;
constexpr double fewestShared = 20;
constexpr std::size_t mostRareWords = 20'000;

using LemmaSets = std::map<WordKey, std::set<std::string>>;

/// Which parts of speech a lexicon may teach.
class Agreement {
public:
    Agreement(const LemmaSets& lexicon, const LemmaCounts& treebanks)
        : treebanksAreSilent_(treebanks.rules().empty()) {
        for (const auto& [word, rules] : treebanks.rules()) {
            const FoldedWord folded(word.form, treebanks.caseRules());
            if (folded.size() == 0) continue;
            const auto found = lexicon.find({foldedForm(word.form, treebanks.caseRules()), word.pos});
            if (found == lexicon.end()) continue;
            const std::string lemma =
                lemmaBy(mostOf(rules), LemmaCasing::lower, folded, treebanks.caseRules());
            Count& count = counts_[static_cast<std::size_t>(word.pos)];
            count.shared += 1;
            count.agreed += found->second.contains(lemma) ? 1 : 0;
        }
    }

    [[nodiscard]] bool holds(UniversalPos pos) const {
        // Treebanks without lemmas speak against nothing.
        if (treebanksAreSilent_) return true;
        const Count& count = counts_[static_cast<std::size_t>(pos)];
        return count.shared >= fewestShared && count.agreed >= leastAgreement * count.shared;
    }

    void print(std::ostream& log) const {
        for (std::size_t pos = 0; pos < counts_.size(); ++pos)
            if (counts_[pos].shared > 0)
                log << "  lexicon " << nameOf(static_cast<UniversalPos>(pos)) << ": " << counts_[pos].agreed
                    << " of " << counts_[pos].shared << " as in the treebanks\n";
    }

private:
    struct Count {
        double shared = 0, agreed = 0;
    };
    bool treebanksAreSilent_ = false;
    std::array<Count, universalPosCount> counts_{};
};

} // namespace

std::vector<LexiconLemma> filteredLexicon(const std::vector<LexiconLemma>& lexicon,
                                          const std::vector<std::string>& frequent,
                                          const LemmaCounts& treebanks, std::ostream& log) {
    LemmaSets lemmas;
    for (const LexiconLemma& line : lexicon)
        lemmas[{foldedForm(line.form, treebanks.caseRules()), line.pos}].insert(
            foldedForm(line.lemma, treebanks.caseRules()));
    const Agreement agreement(lemmas, treebanks);
    agreement.print(log);
    std::set<WordKey> known;
    for (const auto& [word, rules] : treebanks.rules())
        known.insert({foldedForm(word.form, treebanks.caseRules()), word.pos});
    const std::unordered_set<std::string> common(frequent.begin(), frequent.end());
    std::vector<LexiconLemma> kept;
    std::vector<std::pair<std::uint64_t, WordKey>> rare;
    for (const auto& [word, choices] : lemmas) {
        // A word with two lemmas teaches nothing that could be told apart.
        if (choices.size() != 1 || !agreement.holds(word.pos) || known.contains(word)) continue;
        if (common.contains(word.form))
            kept.push_back({word.form, *choices.begin(), word.pos});
        else
            rare.emplace_back(hashOf(word.form), word);
    }
    std::sort(rare.begin(), rare.end());
    if (rare.size() > mostRareWords) rare.resize(mostRareWords);
    log << "  lexicon: " << kept.size() << " frequent words, " << rare.size() << " rare ones\n";
    for (const auto& [hash, word] : rare)
        kept.push_back({word.form, *lemmas.at(word).begin(), word.pos});
    return kept;
}

} // namespace lexiform::train
