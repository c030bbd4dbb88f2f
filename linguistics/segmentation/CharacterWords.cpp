#include "linguistics/segmentation/CharacterWords.h"

#include "linguistics/segmentation/FeatureList.h"
#include "linguistics/text/Unit.h"

#include <algorithm>

namespace lexiform::linguistics {

namespace {

struct Character {
    std::size_t end = 0;
    std::uint32_t value = 0;      ///< 0 outside the run
    std::uint32_t dictionary = 0; ///< 1 where the dictionary ends a word after it
};

std::vector<Character> charactersOf(const Characters& characters, std::string_view run,
                                    const std::vector<std::size_t>& dictionaryEnds) {
    std::vector<Character> read;
    auto dictionaryEnd = dictionaryEnds.begin();
    for (std::size_t at = 0; at < run.size();) {
        const Unit unit = unitAt(characters, run, at);
        at = unit.end;
        while (dictionaryEnd != dictionaryEnds.end() && *dictionaryEnd < at)
            ++dictionaryEnd;
        const bool ends = dictionaryEnd != dictionaryEnds.end() && *dictionaryEnd == at;
        read.push_back({at, static_cast<std::uint32_t>(unit.base), ends ? 1U : 0U});
    }
    return read;
}

// Features of the place after character `last`; `length` counts the characters of the word so far,
// which started `length` characters before.
void featuresAt(const std::vector<Character>& run, std::size_t last, std::uint32_t length,
                FeatureList& features) {
    const auto at = [&](std::size_t place) { return place < run.size() ? run[place] : Character{}; };
    const Character before = at(last - 1), left = at(last), right = at(last + 1), after = at(last + 2);
    const Character farBefore = at(last - 2), farAfter = at(last + 3);
    const std::uint32_t dictionary = left.dictionary * 4 + before.dictionary * 2 + right.dictionary;
    const std::uint32_t shortLength = std::min(length, 4U);
    features.clear();
    features.add(0, left.dictionary);
    features.add(1, dictionary, shortLength);
    features.add(2, left.value, left.dictionary);
    features.add(3, right.value, left.dictionary);
    features.add(4, left.value, right.value);
    features.add(5, before.value, left.value);
    features.add(6, right.value, after.value);
    features.add(7, before.value, left.value, right.value);
    features.add(8, left.value, right.value, after.value);
    features.add(9, before.value, right.value);
    features.add(10, left.value, after.value);
    features.add(11, before.value, left.value, right.value, after.value);
    features.add(12, left.value, right.value, left.dictionary);
    features.add(13, shortLength, left.value, right.value);
    features.add(14, shortLength, right.value);
    features.add(15, shortLength, left.value);
    features.add(16, before.value);
    features.add(17, after.value);
    features.add(18, farBefore.value, before.value, left.value);
    features.add(19, right.value, after.value, farAfter.value);
    features.add(20, dictionary, farBefore.dictionary, after.dictionary, shortLength);
    features.add(21, left.value == before.value, left.value == right.value, left.value == after.value);
}

} // namespace

void CharacterWords::revise(std::string_view run, std::size_t offset, std::vector<std::size_t>& ends) const {
    const std::vector<Character> read = charactersOf(characters_, run, ends);
    ends.clear();
    FeatureList features;
    std::uint32_t length = 0;
    for (std::size_t i = 0; i + 1 < read.size(); ++i) {
        featuresAt(read, i, ++length, features);
        if (!decider_.decide(offset + read[i].end, features.view())) continue;
        ends.push_back(read[i].end);
        length = 0;
    }
    ends.push_back(run.size());
}

} // namespace lexiform::linguistics
