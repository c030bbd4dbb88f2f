#include "linguistics/lemmas/LemmaCache.h"

#include "linguistics/text/Hash.h"

#include <algorithm>
#include <cstring>

namespace lexiform::linguistics {

namespace {

// About the distinct words of a long novel; a paragraph may take it beyond that until it ends.
constexpr std::size_t mostEntries = std::size_t{32} * 1024;
constexpr std::size_t mostBlocks = 8;
constexpr std::size_t fewestSlots = 1024;

} // namespace

LemmaCache::LemmaCache(const LemmaModel& model) : lemmatizer_(model), entries_(fewestSlots) {}

void LemmaCache::startParagraph() {
    if (entryCount_ > mostEntries || blocks_.size() > mostBlocks) clear();
}

void LemmaCache::clear() {
    entries_ = std::vector<Entry>(fewestSlots);
    entryCount_ = 0;
    blocks_.clear();
    blockUsed_ = blockSize;
}

std::size_t LemmaCache::bytesHeld() const {
    return entries_.size() * sizeof(Entry) + blocks_.size() * blockSize;
}

void LemmaCache::lemmatize(std::span<const TaggedWord> sentence, std::span<std::string_view> lemmas) {
    for (std::size_t at = 0; at < sentence.size(); ++at)
        lemmas[at] = lemmaOf(sentence, at);
}

std::string_view LemmaCache::lemmaOf(std::span<const TaggedWord> sentence, std::size_t at) {
    const auto [form, pos] = sentence[at];
    if (form.size() > FoldedWord::mostCharacters * 4) return form;
    // Words are told apart by 64 bits of hash: two that share them are not to be met.
    const auto place = static_cast<std::uint64_t>(placeOf(sentence, at));
    const std::uint64_t key = combined(hashOf(form), static_cast<std::uint64_t>(pos) * 4 + place) | 1;
    Entry& entry = slotOf(key);
    if (entry.key == key && !entry.dependsOnNeighbours)
        return entry.lemma == nullptr ? form : std::string_view(entry.lemma, entry.length);
    const Lemmatizer::Answer answer = lemmatizer_.lemmaOf(sentence, at);
    const std::string_view lemma = answer.lemma == form ? form : kept(answer.lemma);
    if (entry.key == key) return lemma;
    entry = {key, nullptr, 0, answer.dependsOnNeighbours};
    if (answer.lemma != form) {
        entry.lemma = lemma.data();
        entry.length = static_cast<std::uint32_t>(lemma.size());
    }
    if (++entryCount_ * 2 > entries_.size()) grow();
    return lemma;
}

LemmaCache::Entry& LemmaCache::slotOf(std::uint64_t key) {
    std::size_t slot = (key >> 32) & (entries_.size() - 1);
    while (entries_[slot].key != 0 && entries_[slot].key != key)
        slot = (slot + 1) & (entries_.size() - 1);
    return entries_[slot];
}

// A lemma is at most a form and two texts of a rule long, less than a block.
std::string_view LemmaCache::kept(std::string_view lemma) {
    if (lemma.size() > blockSize - blockUsed_) {
        blocks_.push_back(std::make_unique_for_overwrite<char[]>(blockSize));
        blockUsed_ = 0;
    }
    char* start = blocks_.back().get() + blockUsed_;
    std::memcpy(start, lemma.data(), lemma.size());
    blockUsed_ += lemma.size();
    return {start, lemma.size()};
}

void LemmaCache::grow() {
    std::vector<Entry> old(entries_.size() * 2);
    old.swap(entries_);
    for (const Entry& entry : old)
        if (entry.key != 0) slotOf(entry.key) = entry;
}

} // namespace lexiform::linguistics
