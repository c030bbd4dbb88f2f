#include "tools/train/lexicon/WordClusters.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace lexiform::train {

namespace {

using Neighbours = std::vector<std::pair<std::uint32_t, std::uint32_t>>; // a word, how often

/// The words of a text that are kept, by falling frequency, and what stands beside them. Word 0 stands
/// for all that is left out and for the ends of sentences.
struct Bigrams {
    std::vector<std::uint32_t> counts;
    std::vector<Neighbours> before, after;
    std::vector<std::uint32_t> itself; ///< how often a word follows itself
};

double logOf(double count) {
    return count <= 0 ? 0 : count * std::log(count);
}

Neighbours counted(std::vector<std::uint32_t>& words) {
    std::sort(words.begin(), words.end());
    Neighbours result;
    for (const std::uint32_t word : words) {
        if (result.empty() || result.back().first != word) result.emplace_back(word, 0);
        ++result.back().second;
    }
    return result;
}

Bigrams bigramsOf(const std::vector<std::uint32_t>& text, std::size_t words) {
    Bigrams bigrams;
    bigrams.counts.assign(words, 0);
    bigrams.itself.assign(words, 0);
    std::vector<std::vector<std::uint32_t>> before(words), after(words);
    for (std::size_t i = 0; i < text.size(); ++i) {
        ++bigrams.counts[text[i]];
        if (i == 0) continue;
        if (text[i] == text[i - 1]) {
            ++bigrams.itself[text[i]];
            continue;
        }
        before[text[i]].push_back(text[i - 1]);
        after[text[i - 1]].push_back(text[i]);
    }
    for (std::size_t word = 0; word < words; ++word) {
        bigrams.before.push_back(counted(before[word]));
        bigrams.after.push_back(counted(after[word]));
    }
    return bigrams;
}

/// Moves words from class to class as long as that makes the text likelier.
class Exchange {
public:
    Exchange(const Bigrams& bigrams, std::size_t classes)
        : bigrams_(bigrams), classes_(classes), classOf_(bigrams.counts.size()), sizes_(classes, 0),
          pairs_(classes * classes, 0), left_(classes), right_(classes) {
        // Class 0 holds word 0 only; the most frequent words start each class.
        for (std::size_t word = 0; word < classOf_.size(); ++word)
            classOf_[word] = static_cast<std::uint16_t>(word == 0 ? 0 : 1 + (word - 1) % (classes - 1));
        for (std::size_t word = 0; word < classOf_.size(); ++word) {
            sizes_[classOf_[word]] += bigrams.counts[word];
            pair(classOf_[word], classOf_[word]) += bigrams.itself[word];
            for (const auto& [next, count] : bigrams.after[word])
                pair(classOf_[word], classOf_[next]) += count;
        }
    }

    std::size_t pass() {
        std::size_t moved = 0;
        for (std::size_t word = 1; word < classOf_.size(); ++word)
            moved += place(word);
        return moved;
    }

    [[nodiscard]] std::uint16_t classOf(std::size_t word) const { return classOf_[word]; }

private:
    std::int64_t& pair(std::size_t a, std::size_t b) { return pairs_[a * classes_ + b]; }

    bool place(std::size_t word) {
        countNeighbours(word);
        const std::size_t old = classOf_[word];
        shift(word, old, -1);
        std::size_t best = old;
        double bestGain = gain(word, old);
        for (std::size_t candidate = 1; candidate < classes_; ++candidate) {
            if (candidate == old) continue;
            const double value = gain(word, candidate);
            if (value <= bestGain + 1e-9) continue;
            best = candidate;
            bestGain = value;
        }
        shift(word, best, 1);
        classOf_[word] = static_cast<std::uint16_t>(best);
        return best != old;
    }

    // The classes beside the word, itself left out.
    void countNeighbours(std::size_t word) {
        for (const std::uint16_t c : leftClasses_)
            left_[c] = 0;
        for (const std::uint16_t c : rightClasses_)
            right_[c] = 0;
        leftClasses_.clear();
        rightClasses_.clear();
        for (const auto& [other, count] : bigrams_.before[word])
            if ((left_[classOf_[other]] += count) == count) leftClasses_.push_back(classOf_[other]);
        for (const auto& [other, count] : bigrams_.after[word])
            if ((right_[classOf_[other]] += count) == count) rightClasses_.push_back(classOf_[other]);
    }

    void shift(std::size_t word, std::size_t c, std::int64_t sign) {
        sizes_[c] += sign * bigrams_.counts[word];
        for (const std::uint16_t other : leftClasses_)
            pair(other, c) += sign * left_[other];
        for (const std::uint16_t other : rightClasses_)
            pair(c, other) += sign * right_[other];
        pair(c, c) += sign * bigrams_.itself[word];
    }

    static double rise(std::int64_t from, std::int64_t by) {
        return logOf(static_cast<double>(from + by)) - logOf(static_cast<double>(from));
    }

    // What the likelihood gains if the word, which is in no class now, comes into class `c`.
    double gain(std::size_t word, std::size_t c) {
        double sum = -2 * rise(sizes_[c], bigrams_.counts[word]);
        std::int64_t inside = bigrams_.itself[word];
        for (const std::uint16_t other : leftClasses_) {
            if (other == c)
                inside += left_[other];
            else
                sum += rise(pair(other, c), left_[other]);
        }
        for (const std::uint16_t other : rightClasses_) {
            if (other == c)
                inside += right_[other];
            else
                sum += rise(pair(c, other), right_[other]);
        }
        return sum + rise(pair(c, c), inside);
    }

    const Bigrams& bigrams_;
    std::size_t classes_;
    std::vector<std::uint16_t> classOf_;
    std::vector<std::int64_t> sizes_;
    std::vector<std::int64_t> pairs_;
    std::vector<std::uint32_t> left_, right_;
    std::vector<std::uint16_t> leftClasses_, rightClasses_;
};

} // namespace

void WordClusters::add(std::string_view word) {
    auto found = ids_.find(word);
    if (found == ids_.end())
        found = ids_.emplace(std::string(word), static_cast<std::uint32_t>(ids_.size())).first;
    text_.push_back(found->second);
}

std::map<std::string, std::uint16_t> WordClusters::build(int passes) {
    std::vector<std::pair<std::size_t, std::string>> kept;
    std::vector<std::size_t> counts(ids_.size(), 0);
    for (const std::uint32_t word : text_)
        ++counts[word];
    for (const auto& [form, id] : ids_)
        if (!form.empty() && counts[id] >= least_) kept.emplace_back(counts[id], form);
    std::stable_sort(kept.begin(), kept.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<std::uint32_t> numbers(ids_.size(), 0);
    for (std::size_t i = 0; i < kept.size(); ++i)
        numbers[ids_.find(kept[i].second)->second] = static_cast<std::uint32_t>(i + 1);
    for (std::uint32_t& word : text_)
        word = numbers[word];
    const Bigrams bigrams = bigramsOf(text_, kept.size() + 1);
    Exchange exchange(bigrams, clusters_ + 1);
    for (int pass = 0; pass < passes && exchange.pass() > 0; ++pass) {
    }
    std::map<std::string, std::uint16_t> result;
    for (std::size_t i = 0; i < kept.size(); ++i)
        result.emplace(kept[i].second, exchange.classOf(i + 1));
    return result;
}

} // namespace lexiform::train
