#include "tools/train/chain/FeatureExtractor.h"

namespace lexiform::train {

using namespace linguistics;

FeatureExtractor::FeatureExtractor(const Lexicon& lexicon) : lexicon_(lexicon), boundary_(boundaryTraits()) {}

const WordTraits& FeatureExtractor::traitsOf(const std::string& word) {
    const auto found = known_.find(word);
    if (found != known_.end()) return found->second;
    WordTraits traits = linguistics::traitsOf(word);
    const auto entry = lexicon_.find(normalForm(word));
    if (entry != lexicon_.end()) traits.entry = entry->second;
    return known_.emplace(word, traits).first->second;
}

void FeatureExtractor::extract(const GoldSentence& sentence, const Take& take) {
    const std::size_t count = sentence.tokens.size();
    std::vector<const WordTraits*> words(count + neighbourCount, &boundary_);
    std::vector<Casing> casings;
    for (std::size_t i = 0; i < count; ++i) {
        words[i + contextReach] = &traitsOf(sentence.tokens[i].form);
        casings.push_back(words[i + contextReach]->casing);
    }
    const SentenceTraits traits = sentenceTraitsOf(casings);
    for (std::size_t i = 0; i < count; ++i) {
        Context context;
        for (std::size_t place = 0; place < context.size(); ++place) {
            context[place] = words[i + place];
            forEachWordFeature(*words[i + place], static_cast<int>(place) - contextReach,
                               [&](std::uint64_t feature) { take(i, feature); });
        }
        forEachContextFeature(context, i == 0, traits, [&](std::uint64_t feature) { take(i, feature); });
    }
}

} // namespace lexiform::train
