#include "tools/train/segmentation/CompoundCounts.h"

#include "linguistics/segmentation/LowerCasedHash.h"
#include "linguistics/text/AsciiText.h"

#include <algorithm>
#include <cmath>

namespace lexiform::train {

using namespace linguistics;

namespace {

constexpr std::uint32_t fewestOfPair = 4;

bool isMark(char byte) {
    return static_cast<unsigned char>(byte) < 0x80 && !isAsciiLetter(byte);
}

} // namespace

void CompoundCounts::read(std::string_view text) {
    std::uint32_t previous = 0;
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = at;
        while (end < text.size() && !isMark(text[end]))
            ++end;
        if (end > at) {
            const std::uint32_t syllable = lowerCasedHash(text.substr(at, end - at));
            ++syllables_[syllable];
            ++all_;
            if (previous != 0) ++pairs_[std::uint64_t{previous} << 32 | syllable];
            previous = syllable;
        }
        if (end < text.size() && text[end] != ' ') previous = 0;
        at = end + 1;
    }
}

std::vector<std::uint32_t> CompoundCounts::pairs(std::size_t most, double leastRatio) const {
    std::vector<std::pair<double, std::uint32_t>> found;
    for (const auto& [pair, count] : pairs_) {
        if (count < fewestOfPair) continue;
        const auto first = static_cast<std::uint32_t>(pair >> 32), second = static_cast<std::uint32_t>(pair);
        const double ratio =
            count * all_ / (static_cast<double>(syllables_.at(first)) * syllables_.at(second));
        if (ratio >= leastRatio) found.emplace_back(-count * std::log(ratio), pairHash(first, second));
    }
    std::sort(found.begin(), found.end());
    found.resize(std::min(found.size(), most));
    std::vector<std::uint32_t> hashes;
    hashes.reserve(found.size());
    for (const auto& [score, hash] : found)
        hashes.push_back(hash);
    std::sort(hashes.begin(), hashes.end());
    hashes.erase(std::unique(hashes.begin(), hashes.end()), hashes.end());
    return hashes;
}

} // namespace lexiform::train
