#pragma once

#include "linguistics/lemmas/Lemmatizer.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// Gives the words of sentences their lemmas, and keeps those that it has worked out, in bounded memory: a
/// word that comes again costs one look-up. What it answers depends on the sentence only. Not for several
/// threads at once.
class LemmaCache {
public:
    /// A cache over `model`, which must outlive it.
    explicit LemmaCache(const LemmaModel& model);

    /// To be called before each paragraph: the lemmas given so far may go.
    void startParagraph();

    /// Sets the lemma of each word of `sentence`; `lemmas` is as long. A lemma lasts until the next
    /// `startParagraph`, and no longer than the forms of the sentence.
    void lemmatize(std::span<const TaggedWord> sentence, std::span<std::string_view> lemmas);

    /// The bytes that lemmas take up now.
    [[nodiscard]] std::size_t bytesHeld() const;

private:
    struct Entry {
        std::uint64_t key = 0;       ///< 0 is free
        const char* lemma = nullptr; ///< nothing where the lemma is the form or depends on neighbours
        std::uint32_t length = 0;
        bool dependsOnNeighbours = false;
    };

    [[nodiscard]] std::string_view lemmaOf(std::span<const TaggedWord> sentence, std::size_t at);
    [[nodiscard]] Entry& slotOf(std::uint64_t key);
    [[nodiscard]] std::string_view kept(std::string_view lemma);
    void clear();
    void grow();

    static constexpr std::size_t blockSize = std::size_t{64} * 1024;

    Lemmatizer lemmatizer_;
    std::vector<Entry> entries_; ///< open addressing
    std::size_t entryCount_ = 0;
    std::vector<std::unique_ptr<char[]>> blocks_; ///< the letters of the lemmas; they never move
    std::size_t blockUsed_ = blockSize;
};

} // namespace lexiform::linguistics
