#include "linguistics/LanguageGuess.h"

namespace lexiform::linguistics {

namespace {

constexpr std::size_t fewestToAffirm = 4;
constexpr std::size_t fewestToDeny = 8;

} // namespace

void LanguageGuess::add(LexiconEntry entry) {
    ++words_;
    functionWords_ += (entry.lists & WordList::functionWords) != 0;
    unknown_ += entry == LexiconEntry{};
}

LanguageGuess::Answer LanguageGuess::answer() const {
    const bool someFunctionWords = functionWords_ * 10 >= words_;
    const bool mostlyKnown = unknown_ * 3 <= words_;
    if (words_ >= fewestToAffirm && someFunctionWords && mostlyKnown) return Answer::yes;
    const bool hardlyAny = functionWords_ * 40 <= words_;
    const bool mostlyUnknown = unknown_ * 5 >= words_ * 2;
    if (words_ >= fewestToDeny && hardlyAny && mostlyUnknown) return Answer::no;
    return Answer::unclear;
}

} // namespace lexiform::linguistics
