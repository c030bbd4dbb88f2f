#pragma once

#include "tools/train/network/FormTable.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace lexiform::train {

/// Running text without annotation, cut into sentences and words by the engine's rules.
class OpenText {
public:
    /// Adds the words of `file` in `language`, a paragraph a line: of evenly spread paragraphs as many as
    /// `mostBytes` hold.
    /// Gives a fault if it cannot be read.
    [[nodiscard]] std::optional<std::string> add(const std::filesystem::path& file, std::string_view language,
                                                 std::size_t mostBytes, FormTable& forms);
    /// Adds a sentence of numbers of forms.
    void add(std::span<const std::uint32_t> sentence);

    [[nodiscard]] std::size_t sentenceCount() const { return ends_.size(); }
    [[nodiscard]] std::span<const std::uint32_t> sentence(std::size_t index) const {
        const std::size_t start = index == 0 ? 0 : ends_[index - 1];
        return std::span(words_).subspan(start, ends_[index] - start);
    }
    [[nodiscard]] std::size_t wordCount() const { return words_.size(); }

private:
    std::vector<std::uint32_t> words_;
    std::vector<std::size_t> ends_; ///< of the sentences
};

} // namespace lexiform::train
