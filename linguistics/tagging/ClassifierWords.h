#pragma once

#include "base/Outcome.h"
#include "linguistics/file/ModelFile.h"

#include <string>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// The version of the list in a model file: words in UTF-8, a line each, in ascending order of their bytes.
inline constexpr std::uint32_t classifierVersion = 1;

/// The nouns of a language that stand behind numbers as classifiers, as in 三本书, "three volumes of books".
class ClassifierWords {
public:
    ClassifierWords() = default;

    /// The list in `file`, whose bytes must outlive it; an empty one where the file has none. The fault says
    /// in plain English what is wrong with it.
    [[nodiscard]] static Outcome<ClassifierWords, std::string> over(const ModelFile& file);

    [[nodiscard]] bool empty() const { return words_.empty(); }
    [[nodiscard]] bool holds(std::string_view word) const;

private:
    std::vector<std::string_view> words_;
};

} // namespace lexiform::linguistics
