#include "tools/train/segmentation/WordCounts.h"

#include "base/Unicode.h"
#include "linguistics/segmentation/LowerCasedHash.h"
#include "linguistics/text/AsciiText.h"
#include "linguistics/text/Characters.h"

#include <algorithm>

namespace lexiform::train {

using namespace linguistics;

namespace {

constexpr std::size_t longestAbbreviation = 12;
constexpr std::size_t mostAbbreviations = 700;
constexpr std::uint32_t fewestAbbreviations = 4;
// Of a word's occurrences so many in a hundred have a full stop after them, more where sentences do not go
// on after it now and then.
constexpr std::uint32_t leastShareInside = 70, leastShare = 90;

std::string_view chunkAt(std::string_view text, std::size_t at) {
    std::size_t end = at;
    while (end < text.size() && static_cast<unsigned char>(text[end]) > ' ')
        ++end;
    return text.substr(at, end - at);
}

bool startsWithLetter(std::string_view text) {
    const CharacterClass kind = Characters::table().classOf(codePointAt(text, 0));
    return kind == CharacterClass::letter;
}

std::string_view withoutMarks(std::string_view chunk) {
    while (!chunk.empty() && !startsWithLetter(chunk))
        chunk.remove_prefix(codePointAt(chunk, 0).length);
    while (!chunk.empty() && static_cast<unsigned char>(chunk.back()) < 0x80 && !isAsciiAlnum(chunk.back()))
        chunk.remove_suffix(1);
    return chunk;
}

bool goesOn(std::string_view next) {
    if (next.empty()) return false;
    return isLowerCase(codePointAt(next, 0).value) || next[0] == ',' || next[0] == '(';
}

template <typename Pair>
bool moreFrequent(const Pair& a, const Pair& b) {
    return a.first != b.first ? a.first > b.first : a.second < b.second;
}

template <typename Pair>
std::vector<std::uint32_t> hashesOf(std::vector<Pair> found, std::size_t most) {
    std::sort(found.begin(), found.end(), moreFrequent<Pair>);
    found.resize(std::min(found.size(), most));
    std::vector<std::uint32_t> hashes;
    hashes.reserve(found.size());
    for (const auto& [count, word] : found)
        hashes.push_back(lowerCasedHash(word));
    std::sort(hashes.begin(), hashes.end());
    hashes.erase(std::unique(hashes.begin(), hashes.end()), hashes.end());
    return hashes;
}

} // namespace

void WordCounts::read(std::string_view text) {
    std::string_view previous;
    for (std::size_t at = 0; at < text.size();) {
        if (static_cast<unsigned char>(text[at]) <= ' ') {
            if (text[at] == '\n' && !previous.empty()) {
                count(previous, {});
                previous = {};
            }
            ++at;
            continue;
        }
        const std::string_view chunk = chunkAt(text, at);
        if (!previous.empty()) count(previous, chunk);
        previous = chunk;
        at += chunk.size();
    }
    if (!previous.empty()) count(previous, {});
}

void WordCounts::count(std::string_view chunk, std::string_view next) {
    const std::string_view word = withoutMarks(chunk);
    if (word.empty() || word.size() > 40) return;
    Count& count = counts_[lowerCased(word)];
    ++count.all;
    count.small += isLowerCase(codePointAt(word, 0).value);
    const std::size_t end = static_cast<std::size_t>(word.data() - chunk.data()) + word.size();
    const std::string_view tail = chunk.substr(end);
    if (!tail.starts_with('.') || tail.starts_with("..")) return;
    ++count.stopped;
    count.stoppedInside += tail.size() > 1 ? tail[1] == ',' : goesOn(next);
}

std::vector<std::uint32_t> WordCounts::abbreviations() const {
    std::vector<std::pair<std::uint32_t, std::string>> found;
    for (const auto& [word, count] : counts_) {
        const bool oftenInside = count.stoppedInside >= 2 && count.stoppedInside * 4 >= count.stopped;
        const std::uint32_t share = count.stopped * 100 / count.all;
        if (word.size() <= longestAbbreviation && count.stopped >= fewestAbbreviations &&
            share >= (oftenInside ? leastShareInside : leastShare))
            found.emplace_back(count.stopped, word);
    }
    return hashesOf(std::move(found), mostAbbreviations);
}

std::vector<std::uint32_t> WordCounts::commonWords(std::size_t most) const {
    std::vector<std::pair<std::uint32_t, std::string>> found;
    for (const auto& [word, count] : counts_)
        if (count.all >= 3 && count.small * 10 >= count.all * 6) found.emplace_back(count.all, word);
    return hashesOf(std::move(found), most);
}

} // namespace lexiform::train
