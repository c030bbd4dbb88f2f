#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::train {

/// Makes training texts of many lengths out of longer ones, by a seeded generator: the same ones on
/// every run.
class Fragments {
public:
    explicit Fragments(std::uint64_t seed) : random_(seed) {}

    /// `text` as it is, or more often some of its words that follow each other.
    [[nodiscard]] std::string fragmentOf(std::string_view text);

    /// 3 to 12 of the words, in any order.
    [[nodiscard]] std::string mixtureOf(const std::vector<std::string>& words);

    /// A number from 0 to `limit` - 1.
    [[nodiscard]] std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }

private:
    std::mt19937_64 random_;
};

/// The parts of `text` between blanks.
[[nodiscard]] std::vector<std::string_view> wordsOf(std::string_view text);

} // namespace lexiform::train
