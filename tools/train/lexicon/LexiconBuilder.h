#pragma once

#include "linguistics/tagging/LexiconEntry.h"
#include "linguistics/tagging/WordTraits.h"
#include "tools/train/corpora/Corpus.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::train {

/// What a lexicon holds, by normal form.
using Lexicon = std::map<std::string, linguistics::LexiconEntry, std::less<>>;

/// Gathers a lexicon from word lists and from texts tagged by another scheme. No training text goes
/// into it, so that the model learns how far to trust it.
class LexiconBuilder {
public:
    /// Counts the corpus's own tags of each word; they make the ambiguity classes.
    void addTaggedText(const Corpus& corpus);
    /// Says that a dictionary lists `form` with a part of speech, given as one letter.
    void addDictionaryForm(std::string_view form, char pos);
    /// Puts a word on a list of names or the like.
    void addToList(std::string_view form, linguistics::WordList list);
    void setCluster(std::string_view form, std::uint16_t cluster);
    /// Common words; a dictionary's others are left out.
    void addCommonWord(std::string_view form);

    [[nodiscard]] Lexicon build() const;
    /// One more than the highest ambiguity class of what `build` gives.
    [[nodiscard]] static constexpr std::size_t classCount() { return mostClasses + 1; }

private:
    static constexpr std::size_t mostClasses = 160;

    struct Word {
        std::map<std::string, std::size_t> tags;
        std::size_t count = 0;
        std::string dictionary; ///< its parts of speech, in alphabetical order
        bool common = false;
        linguistics::LexiconEntry entry;
    };

    Word& wordAt(std::string_view form);
    [[nodiscard]] static std::string classNameOf(const Word& word);
    [[nodiscard]] static bool isFunctionWord(std::string_view form, const Word& word);
    [[nodiscard]] std::map<std::string, std::uint8_t> numberedClasses() const;

    std::map<std::string, Word, std::less<>> words_;
};

} // namespace lexiform::train
