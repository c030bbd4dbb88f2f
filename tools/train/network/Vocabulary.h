#pragma once

#include "linguistics/network/WordRows.h"
#include "tools/train/lexicon/LexiconBuilder.h"
#include "tools/train/network/FormTable.h"
#include "tools/train/network/Network.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace lexiform::train {

/// How often the words of some texts occur, by normal form.
class FormCounts {
public:
    /// `annotated` and `open` tell how often each form of `forms` occurs in annotated and in other text.
    FormCounts(const FormTable& forms, const std::vector<std::uint32_t>& annotated,
               const std::vector<std::uint32_t>& open);

    struct Count {
        std::uint32_t annotated = 0, open = 0;
    };
    [[nodiscard]] const std::map<std::string, Count>& words() const { return words_; }

private:
    std::map<std::string, Count> words_;
};

/// What a network knows of words: which have rows of their own, and the lexicon.
class Vocabulary {
public:
    /// Gives rows to the `most` words that matter most: those of annotated text before others.
    Vocabulary(const FormCounts& counts, const Lexicon& lexicon, std::size_t most);

    /// The entry of a word in normal form; an empty one if nothing is known of it.
    [[nodiscard]] linguistics::NetworkEntry find(const std::string& normal) const;
    [[nodiscard]] const std::map<std::string, linguistics::NetworkEntry>& entries() const { return entries_; }
    /// How many rows words need, with those of unknown words and boundaries.
    [[nodiscard]] std::size_t rowCount() const { return rowCount_; }

    /// How each of `forms` is seen by a network with this layout.
    [[nodiscard]] std::vector<SeenForm> seen(const FormTable& forms, const FormCounts& counts,
                                             const linguistics::RowLayout& layout) const;

private:
    std::map<std::string, linguistics::NetworkEntry> entries_;
    std::size_t rowCount_ = 0;
};

} // namespace lexiform::train
