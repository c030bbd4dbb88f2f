#include "linguistics/network/WordRows.h"

#include "linguistics/text/Hash.h"
#include "linguistics/text/Utf8.h"

namespace lexiform::linguistics {

namespace {

constexpr std::size_t suffixCount = 5;
constexpr std::size_t prefixCount = 3;
// The lists of names; whether a word holds sentences together is for other parts of the engine.
constexpr std::uint8_t nameLists = givenNames | familyNames | cityNames | countryNames;
constexpr std::uint32_t casingCount = 8;

RowKind kindAfter(RowKind kind, std::size_t steps) {
    return static_cast<RowKind>(static_cast<std::size_t>(kind) + steps);
}

// The first byte of a character of `text` before byte `at`: continuation bytes belong to it.
std::size_t characterBefore(std::string_view text, std::size_t at) {
    do
        --at;
    while (at > 0 && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80);
    return at;
}

void addSuffixes(std::string_view form, const RowLayout& layout, WordRows& rows) {
    std::size_t start = form.size();
    for (std::size_t n = 0; n < suffixCount && start > 0; ++n) {
        start = characterBefore(form, start);
        rows.add(layout.hashedRow(kindAfter(RowKind::suffix1, n), hashOf(form.substr(start))));
    }
}

void addPrefixes(std::string_view form, const RowLayout& layout, WordRows& rows) {
    std::size_t end = 0;
    for (std::size_t n = 0; n < prefixCount && end < form.size(); ++n) {
        end += codePointAt(form, end).length;
        rows.add(layout.hashedRow(kindAfter(RowKind::prefix1, n), hashOf(form.substr(0, end))));
    }
}

std::uint32_t listIndex(std::uint8_t lists, Casing casing) {
    return (lists & nameLists) * casingCount + static_cast<std::uint32_t>(casing);
}

} // namespace

RowLayout::RowLayout(const Counts& counts) : counts_(counts) {
    for (std::size_t kind = 0; kind < rowKindCount; ++kind) {
        starts_[kind] = static_cast<std::uint32_t>(size_);
        size_ += counts[kind];
    }
}

WordRows rowsOf(std::string_view word, NetworkEntry entry, const RowLayout& layout) {
    const WordTraits traits = traitsOf(word);
    const std::string form = normalForm(word);
    WordRows rows;
    rows.add(layout.row(RowKind::word, entry.row));
    rows.add(layout.hashedRow(RowKind::shape, traits.shape));
    rows.add(layout.row(RowKind::ambiguity, entry.ambiguity));
    rows.add(layout.row(RowKind::lists, listIndex(entry.lists, traits.casing)));
    addSuffixes(form, layout, rows);
    addPrefixes(form, layout, rows);
    return rows;
}

WordRows boundaryRows(const RowLayout& layout) {
    WordRows rows;
    rows.add(layout.row(RowKind::word, boundaryRow));
    return rows;
}

} // namespace lexiform::linguistics
