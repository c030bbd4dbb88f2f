#include "tools/train/FineTagMap.h"

#include "linguistics/WordTraits.h"

#include <algorithm>
#include <numeric>

namespace lexiform::train {

using linguistics::UniversalPos;

namespace {

// A part of speech rarer than this under a tag is a slip of an annotator.
constexpr double leastShare = 0.01;

template <typename Counts>
UniversalPos commonest(const Counts& counts) {
    return static_cast<UniversalPos>(std::max_element(counts.begin(), counts.end()) - counts.begin());
}

template <typename Counts>
bool allows(const Counts& counts, UniversalPos pos) {
    const auto all = std::accumulate(counts.begin(), counts.end(), std::size_t{0});
    return static_cast<double>(counts[static_cast<std::size_t>(pos)]) >=
           leastShare * static_cast<double>(all);
}

} // namespace

void FineTagMap::learn(const Corpus& corpus) {
    for (const GoldSentence& sentence : corpus)
        for (const GoldToken& token : sentence.tokens) {
            if (!token.pos || token.finePos.empty()) continue;
            const auto pos = static_cast<std::size_t>(*token.pos);
            ++byTag_[token.finePos][pos];
            ++byWordAndTag_[{linguistics::normalForm(token.form), token.finePos}][pos];
        }
}

UniversalPos FineTagMap::resolve(const GoldToken& token, UniversalPos guess) const {
    const auto word = byWordAndTag_.find({linguistics::normalForm(token.form), token.finePos});
    if (word != byWordAndTag_.end()) return allows(word->second, guess) ? guess : commonest(word->second);
    const auto tag = byTag_.find(token.finePos);
    if (tag == byTag_.end() || allows(tag->second, guess)) return guess;
    return commonest(tag->second);
}

} // namespace lexiform::train
