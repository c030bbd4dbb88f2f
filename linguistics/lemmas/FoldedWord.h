#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lexiform::linguistics {

/// Which letters of a word are capitals, as far as it matters for the capitals of its lemma.
enum class LetterCase : std::uint8_t { none, lower, oneCapital, capitalised, upper, mixed };

/// How the lower case of a language differs from Unicode's.
enum class CaseRules : std::uint8_t {
    standard,
    turkic, ///< I and ı, İ and i are the pairs
};

[[nodiscard]] CaseRules caseRulesOf(std::string_view language);

/// A word as an array of characters, and the same in lower case with plain apostrophes, character for
/// character: rules count characters and must not be misled by the lengths of their codes.
class FoldedWord {
public:
    static constexpr std::size_t mostCharacters = 48;

    /// Folds `form`, which may be any bytes. A form that is empty, too long or not UTF-8 fits no rule:
    /// the word is then empty.
    FoldedWord(std::string_view form, CaseRules rules);

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] char32_t original(std::size_t at) const { return original_[at]; }
    [[nodiscard]] char32_t lower(std::size_t at) const { return lower_[at]; }
    [[nodiscard]] LetterCase letterCase() const { return case_; }

private:
    void findCase();

    std::array<char32_t, mostCharacters> original_;
    std::array<char32_t, mostCharacters> lower_;
    std::size_t size_ = 0;
    LetterCase case_ = LetterCase::none;
};

[[nodiscard]] char32_t lowerCase(char32_t value, CaseRules rules);
[[nodiscard]] char32_t upperCase(char32_t value, CaseRules rules);

} // namespace lexiform::linguistics
