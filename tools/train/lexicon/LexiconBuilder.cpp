#include "tools/train/lexicon/LexiconBuilder.h"

#include "linguistics/text/AsciiText.h"

#include <algorithm>
#include <array>

namespace lexiform::train {

namespace {

using namespace std::string_view_literals;
using linguistics::LexiconEntry;

// Seen this often, a word's own tags say more than a dictionary.
constexpr std::size_t wellSeen = 4;
// A tag on fewer of a word's occurrences is noise.
constexpr double leastShare = 0.08;
constexpr std::size_t mostTags = 3;

// Tags of the words that hold sentences together.
constexpr std::array functionTags = {"CC"sv,   "DT"sv, "EX"sv,  "IN"sv, "MD"sv,  "PDT"sv, "PRP"sv,
                                     "PRP$"sv, "TO"sv, "WDT"sv, "WP"sv, "WP$"sv, "WRB"sv};
constexpr std::size_t frequent = 100;
// Frequent in other languages too.
constexpr std::array sharedWords = {"a"sv,   "am"sv,    "an"sv,  "as"sv, "at"sv, "die"sv,  "do"sv,
                                    "for"sv, "he"sv,    "her"sv, "i"sv,  "in"sv, "is"sv,   "me"sv,
                                    "men"sv, "no"sv,    "of"sv,  "on"sv, "or"sv, "over"sv, "per"sv,
                                    "so"sv,  "under"sv, "was"sv, "we"sv};
constexpr std::array auxiliaries = {"are"sv, "be"sv,  "been"sv, "could"sv, "did"sv, "does"sv,
                                    "had"sv, "has"sv, "have"sv, "n't"sv,   "not"sv, "were"sv};

std::vector<std::pair<std::size_t, std::string>> byShare(const std::map<std::string, std::size_t>& tags) {
    std::vector<std::pair<std::size_t, std::string>> ordered;
    ordered.reserve(tags.size());
    for (const auto& [tag, count] : tags)
        ordered.emplace_back(count, tag);
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    return ordered;
}

} // namespace

LexiconBuilder::Word& LexiconBuilder::wordAt(std::string_view form) {
    return words_[linguistics::normalForm(form)];
}

void LexiconBuilder::addTaggedText(const Corpus& corpus) {
    for (const GoldSentence& sentence : corpus)
        for (const GoldToken& token : sentence.tokens) {
            Word& word = wordAt(token.form);
            ++word.tags[token.finePos];
            ++word.count;
        }
}

void LexiconBuilder::addDictionaryForm(std::string_view form, char pos) {
    std::string& known = wordAt(form).dictionary;
    if (known.find(pos) != std::string::npos) return;
    known.insert(std::upper_bound(known.begin(), known.end(), pos), pos);
}

void LexiconBuilder::addToList(std::string_view form, linguistics::WordList list) {
    LexiconEntry& entry = wordAt(form).entry;
    entry.lists = static_cast<std::uint8_t>(entry.lists | list);
}

void LexiconBuilder::setCluster(std::string_view form, std::uint16_t cluster) {
    wordAt(form).entry.cluster = cluster;
}

void LexiconBuilder::addCommonWord(std::string_view form) {
    wordAt(form).common = true;
}

std::string LexiconBuilder::classNameOf(const Word& word) {
    if (word.count < wellSeen && !word.dictionary.empty()) return "dictionary " + word.dictionary;
    std::string name;
    std::size_t tags = 0;
    for (const auto& [count, tag] : byShare(word.tags)) {
        const bool rare = static_cast<double>(count) < leastShare * static_cast<double>(word.count);
        if (rare || ++tags > mostTags) break;
        name += tag + " ";
    }
    return word.count < wellSeen && !name.empty() ? "seldom " + name : name;
}

std::map<std::string, std::uint8_t> LexiconBuilder::numberedClasses() const {
    std::map<std::string, std::size_t> sizes;
    for (const auto& [form, word] : words_)
        if (const std::string name = classNameOf(word); !name.empty())
            sizes[name] += std::max<std::size_t>(word.count, 1);
    std::map<std::string, std::uint8_t> numbers;
    for (const auto& [size, name] : byShare(sizes))
        if (numbers.size() < mostClasses)
            numbers.emplace(name, static_cast<std::uint8_t>(numbers.size() + 1));
    return numbers;
}

bool LexiconBuilder::isFunctionWord(std::string_view form, const Word& word) {
    if (word.tags.empty() || linguistics::holds(sharedWords, form)) return false;
    if (linguistics::holds(auxiliaries, form)) return true;
    if (word.count < frequent) return false;
    const std::string commonest = byShare(word.tags).front().second;
    return linguistics::holds(functionTags, commonest);
}

Lexicon LexiconBuilder::build() const {
    const auto classes = numberedClasses();
    Lexicon lexicon;
    for (const auto& [form, word] : words_) {
        LexiconEntry entry = word.entry;
        if (word.common || word.count > 1) {
            const auto found = classes.find(classNameOf(word));
            if (found != classes.end()) entry.ambiguity = found->second;
        }
        if (isFunctionWord(form, word)) entry.lists |= linguistics::functionWords;
        if (entry != LexiconEntry{}) lexicon.emplace(form, entry);
    }
    return lexicon;
}

} // namespace lexiform::train
