#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lexiform::linguistics {

/// A script, or scripts that one language mixes, as far as they tell languages apart.
enum class Writing : std::uint8_t {
    none, ///< no letter
    latin,
    cyrillic,
    arabic,
    devanagari,
    bengali,
    hebrew,
    ethiopic,
    tibetan,
    han,
    kana,
    hangul,
    greek,
    thai,
    georgian,
    armenian,
    khmer,
    lao,
    burmese,
    gurmukhi,
    gujarati,
    oriya,
    tamil,
    telugu,
    kannada,
    malayalam,
    sinhala,
    thaana,
    cherokee,
    other, ///< letters of any other script
};

inline constexpr std::size_t writingCount = static_cast<std::size_t>(Writing::other) + 1;

/// A set of writings, one bit each.
using Writings = std::uint32_t;
static_assert(writingCount <= 32);

[[nodiscard]] constexpr Writings setOf(Writing writing) {
    return Writings{1} << static_cast<unsigned>(writing);
}

/// BCP 47 of the language that alone writes so, of those that can be told; empty where several do.
/// Han without kana counts as Chinese.
[[nodiscard]] std::string_view onlyLanguageOf(Writing writing);

/// The same of a script, by its ISO 15924 code; empty for a code that is not known, too.
[[nodiscard]] std::string_view onlyLanguageOf(std::string_view script);

/// Whether a character may stand inside a word without spelling anything: a soft hyphen, a stretching
/// stroke, a vowel point, a mark that no letter took in.
[[nodiscard]] bool isSilent(char32_t value);

/// The writing and the lower case of every character of the basic multilingual plane; tables, since
/// ICU's own look-ups are several times slower.
class LetterTable {
public:
    /// The table, made when it is first asked for; lasts as long as the program.
    [[nodiscard]] static const LetterTable& table();

    /// The writing of a letter or of a mark that spells like one; `none` for all else.
    [[nodiscard]] Writing writingOf(char32_t value) const {
        return value < planeSize ? writings_[value] : farWritingOf(value);
    }
    /// The lower case where it is one character of the plane, else the character itself.
    [[nodiscard]] char16_t lowerOf(char16_t value) const { return lower_[value]; }

private:
    static constexpr std::size_t planeSize = 0x10000;

    LetterTable();
    [[nodiscard]] static Writing farWritingOf(char32_t value);

    std::array<Writing, planeSize> writings_{};
    std::array<char16_t, planeSize> lower_{};
};

} // namespace lexiform::linguistics
