#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// Finds words in scripts that write them without spaces, with ICU's dictionaries (Chinese, Japanese,
/// Thai, Lao, Khmer, Burmese). Not for several threads at once.
class DictionaryBreaker {
public:
    DictionaryBreaker();
    ~DictionaryBreaker();
    DictionaryBreaker(const DictionaryBreaker&) = delete;
    DictionaryBreaker& operator=(const DictionaryBreaker&) = delete;

    /// The bytes at which the words of `run`, which is UTF-8, end; the last is its length.
    [[nodiscard]] std::vector<std::size_t> wordEnds(std::string_view run);

private:
    struct Iterator;
    // Made when first needed, since it loads dictionaries; nothing where ICU has none to give.
    std::unique_ptr<Iterator> iterator_;
};

} // namespace lexiform::linguistics
