#pragma once

#include "base/Unicode.h"
#include "tools/train/corpora/Corpus.h"

#include <cstddef>
#include <string>
#include <vector>

namespace lexiform::train {

/// A sentence with what rules ask of it again and again.
class LookedAt {
public:
    /// Looks at `sentence`, which must outlive this. Its tags and lemmas may change meanwhile, its forms
    /// not.
    explicit LookedAt(const GoldSentence& sentence) : sentence_(sentence) {
        for (const GoldToken& token : sentence.tokens)
            lowered_.push_back(lowerCased(token.form));
    }

    [[nodiscard]] std::size_t size() const { return lowered_.size(); }
    [[nodiscard]] const GoldToken& token(std::size_t at) const { return sentence_.tokens[at]; }
    [[nodiscard]] const std::string& lowered(std::size_t at) const { return lowered_[at]; }

private:
    const GoldSentence& sentence_;
    std::vector<std::string> lowered_;
};

/// A word of a sentence, to be asked about by rules.
struct Place {
    const LookedAt& sentence;
    std::size_t at = 0;

    [[nodiscard]] const GoldToken& token() const { return sentence.token(at); }
    [[nodiscard]] const std::string& lowered() const { return sentence.lowered(at); }
};

} // namespace lexiform::train
