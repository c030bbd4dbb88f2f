#pragma once

#include "linguistics/tagging/WordTraits.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lexiform::linguistics {

/// What a row of the network's table stands for. The rows of one kind lie together.
enum class RowKind : std::uint8_t {
    word, ///< a frequent word in normal form; the first two are `unknownRow` and `boundaryRow`
    shape,
    ambiguity, ///< the lexicon's class of words with the same parts of speech
    lists,     ///< the lists of names that the word stands in, with its casing
    suffix1,
    suffix2,
    suffix3,
    suffix4,
    suffix5,
    prefix1,
    prefix2,
    prefix3,
};
inline constexpr std::size_t rowKindCount = 12;

/// The rows of the first kind that stand for no word.
inline constexpr std::uint16_t unknownRow = 0;
inline constexpr std::uint16_t boundaryRow = 1;
inline constexpr std::uint16_t firstWordRow = 2;

/// Rows of `RowKind::lists` that are in use: for every choice of the four lists and every casing.
inline constexpr std::uint32_t listRowCount = 16 * 8;

/// What the network's lexicon holds of a word in normal form; all zero for one that it lacks.
struct NetworkEntry {
    std::uint16_t row = unknownRow; ///< among the rows of `RowKind::word`
    std::uint8_t ambiguity = 0;
    std::uint8_t lists = 0; ///< bits of `WordList`

    bool operator==(const NetworkEntry&) const = default;
};

/// How many rows each kind has, and where they start.
class RowLayout {
public:
    using Counts = std::array<std::uint32_t, rowKindCount>;

    RowLayout() = default;
    /// Every count is at least 1, that of words `firstWordRow`, that of lists `listRowCount`.
    explicit RowLayout(const Counts& counts);

    [[nodiscard]] const Counts& counts() const { return counts_; }
    [[nodiscard]] std::uint32_t countOf(RowKind kind) const {
        return counts_[static_cast<std::size_t>(kind)];
    }
    /// The row `index` of a kind, which has more rows.
    [[nodiscard]] std::uint32_t row(RowKind kind, std::uint32_t index) const {
        return starts_[static_cast<std::size_t>(kind)] + index;
    }
    /// The row of a kind that a hash falls on.
    [[nodiscard]] std::uint32_t hashedRow(RowKind kind, std::uint64_t hash) const {
        return row(kind, static_cast<std::uint32_t>(((hash >> 32) * countOf(kind)) >> 32));
    }
    [[nodiscard]] std::size_t size() const { return size_; }

private:
    Counts counts_{};
    std::array<std::uint32_t, rowKindCount> starts_{};
    std::size_t size_ = 0;
};

/// The rows whose sum is what the network sees of a word.
class WordRows {
public:
    void add(std::uint32_t row) { rows_[count_++] = row; }
    /// Puts another row in the place of the first one added.
    void setFirst(std::uint32_t row) { rows_[0] = row; }

    [[nodiscard]] const std::uint32_t* begin() const { return rows_.data(); }
    [[nodiscard]] const std::uint32_t* end() const { return rows_.data() + count_; }
    [[nodiscard]] std::size_t size() const { return count_; }

private:
    std::array<std::uint32_t, rowKindCount> rows_{}; // no word has two rows of a kind
    std::uint8_t count_ = 0;
};

/// The rows of `word`; `entry` is what the lexicon holds of it, its row and class inside the layout. The
/// trainer and the engine ask for them here, so that they cannot differ. The row of `RowKind::word` comes
/// first.
[[nodiscard]] WordRows rowsOf(std::string_view word, NetworkEntry entry, const RowLayout& layout);

/// The row of what stands before and after a sentence.
[[nodiscard]] WordRows boundaryRows(const RowLayout& layout);

} // namespace lexiform::linguistics
