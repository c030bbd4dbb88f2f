#include "tools/train/lemmas/LemmaModelWriter.h"

#include "linguistics/lemmas/LemmaFormat.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <string>

namespace lexiform::train {

namespace {

using namespace linguistics;

// Records a bucket holds on average.
constexpr std::size_t bucketLoad = 4;

void append(std::vector<std::uint8_t>& bytes, const std::u32string& text) {
    std::string spelt;
    for (const char32_t value : text) {
        std::array<char, U8_MAX_LENGTH> code{};
        std::int32_t length = 0;
        U8_APPEND_UNSAFE(code.data(), length, static_cast<UChar32>(value));
        spelt.append(code.data(), static_cast<std::size_t>(length));
    }
    bytes.push_back(static_cast<std::uint8_t>(spelt.size()));
    bytes.insert(bytes.end(), spelt.begin(), spelt.end());
}

std::vector<std::uint8_t> bytesOf(std::span<const LemmaRule> rules) {
    std::vector<std::uint8_t> bytes;
    for (const LemmaRule& rule : rules) {
        for (const std::uint8_t value :
             {std::uint8_t{rule.whole}, rule.prefixKept, rule.prefixDropped, rule.suffixDropped})
            bytes.push_back(value);
        append(bytes, rule.inserted);
        append(bytes, rule.ending);
    }
    return bytes;
}

int rootOf(double weight) {
    const int root =
        std::min(static_cast<int>(std::lround(std::sqrt(std::abs(weight)))), LemmaWeight::largestRoot);
    return weight < 0 ? -root : root;
}

int squareOf(int root) {
    return root < 0 ? -root * root : root * root;
}

} // namespace

double scaleOf(std::span<const LearntWeight> weights) {
    double most = 0;
    for (const LearntWeight& weight : weights)
        most = std::max(most, std::abs(weight.value));
    return most == 0 ? 1 : LemmaWeight::largest / most;
}

int roundedWeight(double weight) {
    return squareOf(rootOf(weight));
}

int leastRoundedTo(int weight) {
    int root = -LemmaWeight::largestRoot;
    while (root < LemmaWeight::largestRoot && squareOf(root) < weight)
        ++root;
    return squareOf(root);
}

void writeLemmas(std::span<const LemmaRule> rules, std::span<const LearntWeight> weights,
                 ModelFileWriter& file) {
    const std::size_t buckets = std::bit_ceil(weights.size() / bucketLoad + 1);
    std::vector<std::vector<LemmaWeight>> filled(buckets);
    for (const LearntWeight& learnt : weights) {
        const int value = rootOf(learnt.value);
        if (value != 0)
            filled[lemmaBucketOf(learnt.feature, buckets)].push_back(
                LemmaWeight::of(lemmaCheckOf(learnt.feature), learnt.label, value));
    }
    std::vector<std::uint16_t> starts{0};
    std::vector<LemmaWeight> all;
    for (const auto& bucket : filled) {
        all.insert(all.end(), bucket.begin(), bucket.end());
        starts.push_back(static_cast<std::uint16_t>(all.size()));
    }
    file.append(lemmaRules, lemmaVersion, bytesOf(rules));
    file.append(lemmaBucketStarts, lemmaVersion, starts);
    file.append(lemmaWeights, lemmaVersion, all);
}

} // namespace lexiform::train
