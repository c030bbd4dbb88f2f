#pragma once

#include "linguistics/language/LanguageIdentifier.h"
#include "tools/train/language/LanguageTexts.h"

#include <cstddef>
#include <cstdio>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace lexiform::train {

/// Counts how often an identifier tells the language of texts. No answer is a wrong one.
class LanguageEvaluation {
public:
    explicit LanguageEvaluation(const linguistics::LanguageIdentifier& identifier)
        : identifier_(identifier) {}

    /// Shorter texts are counted by themselves; in characters.
    static constexpr std::size_t fewestCharacters = 20;

    void add(const std::string& language, const std::string& text);

    /// A table by language, the micro average, the chief confusions, and the average of shorter texts.
    void print(std::FILE* output) const;

private:
    struct Count {
        std::size_t texts = 0;
        std::size_t right = 0;
        std::size_t silent = 0;
    };

    const linguistics::LanguageIdentifier& identifier_;
    std::map<std::string, Count> counts_;
    std::map<std::pair<std::string, std::string>, std::size_t> confusions_;
    Count shorter_;
};

} // namespace lexiform::train
