#include "linguistics/tagging/WordTraits.h"

#include "base/Unicode.h"
#include "linguistics/text/AsciiText.h"
#include "linguistics/text/Characters.h"
#include "linguistics/text/Hash.h"

#include <algorithm>

namespace lexiform::linguistics {

namespace {

// Seeds that keep the hashes of a word's parts apart from those of whole words.
constexpr std::uint64_t suffixSeed = 0x73756666;
constexpr std::uint64_t prefixSeed = 0x70726566;

// Of a long word the shape's first part says all.
constexpr std::size_t longestShape = 12;

bool isAscii(std::string_view word) {
    return std::none_of(word.begin(), word.end(),
                        [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

bool isAddress(std::string_view word) {
    return word.size() > 4 && (word.find("://") != std::string_view::npos || word.starts_with("www.") ||
                               word.find('@', 1) != std::string_view::npos);
}

// Lower case makes an i with a dot too many of a capital I with one, as Turkish has it.
std::string plainLetters(std::string_view text) {
    constexpr std::string_view apostrophe = "\xE2\x80\x99", dot = "\xCC\x87";
    std::string plain;
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view rest = text.substr(at);
        if (rest.starts_with(apostrophe)) {
            plain += '\'';
            at += apostrophe.size();
        } else if (rest.starts_with(dot) && plain.ends_with('i')) {
            at += dot.size();
        } else {
            plain += text[at++];
        }
    }
    return plain;
}

char shapeOf(char32_t value) {
    if (isUpperCase(value)) return 'X';
    if (value < 0x80) {
        const char c = static_cast<char>(value);
        return isAsciiLower(c) ? 'x' : isAsciiDigit(c) ? '0' : c;
    }
    switch (Characters::table().classOf(value)) {
    case CharacterClass::letter:
    case CharacterClass::mark:
        return 'x';
    case CharacterClass::joinedLetter:
        return 'j';
    case CharacterClass::digit:
        return '0';
    case CharacterClass::punctuation:
        return 'p';
    default:
        return 's';
    }
}

struct Counts {
    std::size_t upper = 0, lower = 0, digits = 0, marks = 0;
    bool upperFirst = false;
};

Casing casingOf(const Counts& counts) {
    if (counts.upper + counts.lower == 0) return counts.digits > 0 ? Casing::digits : Casing::marks;
    if (counts.upper == 0) return Casing::lower;
    if (counts.lower == 0) return counts.upper == 1 ? Casing::oneCapital : Casing::upper;
    return counts.upperFirst && counts.upper == 1 ? Casing::capitalised : Casing::mixed;
}

void count(Counts& counts, char shape, bool first) {
    if (shape == 'X')
        ++counts.upper;
    else if (shape == 'x' || shape == 'j')
        ++counts.lower;
    else if (shape == '0')
        ++counts.digits;
    else
        ++counts.marks;
    if (first) counts.upperFirst = shape == 'X';
}

// Sets shape and casing: the classes of the characters, no more than two of one kind in a row.
void describe(std::string_view word, WordTraits& traits) {
    Counts counts;
    std::string shape;
    for (std::size_t at = 0; at < word.size();) {
        const CodePoint point = codePointAt(word, at);
        const char kind = shapeOf(point.value);
        count(counts, kind, at == 0);
        const std::size_t size = shape.size();
        const bool third = size > 1 && shape[size - 1] == kind && shape[size - 2] == kind;
        if (!third && size < longestShape) shape += kind;
        at += point.length;
    }
    traits.shape = hashOf(shape);
    traits.casing = casingOf(counts);
}

} // namespace

std::string normalForm(std::string_view word) {
    if (isAddress(word)) return std::string("<address>");
    std::string form = isAscii(word) ? std::string(word) : plainLetters(lowerCased(word));
    std::transform(form.begin(), form.end(), form.begin(),
                   [](char c) { return isAsciiDigit(c) ? '0' : asciiLower(c); });
    return form;
}

WordTraits traitsOf(std::string_view word) {
    WordTraits traits;
    const std::string form = normalForm(word);
    const std::string_view normal = form;
    traits.exact = hashOf(word);
    traits.normal = hashOf(normal);
    for (std::size_t n = 1; n <= WordTraits::suffixCount && n <= normal.size(); ++n)
        traits.suffixes[n - 1] = combined(suffixSeed, hashOf(normal.substr(normal.size() - n)));
    for (std::size_t n = 1; n <= WordTraits::prefixCount && n <= normal.size(); ++n)
        traits.prefixes[n - 1] = combined(prefixSeed, hashOf(normal.substr(0, n)));
    describe(word, traits);
    return traits;
}

WordTraits boundaryTraits() {
    WordTraits traits;
    traits.exact = traits.normal = traits.shape = hashOf("<boundary>");
    return traits;
}

} // namespace lexiform::linguistics
