#include "tools/train/lexicon/NameLists.h"

namespace lexiform::train {

namespace {

namespace fs = std::filesystem;
using linguistics::WordList;

// Family names past this rank are seldom met and often ordinary words.
constexpr std::size_t mostFamilyNames = 15000;
constexpr std::size_t mostGivenNames = 1000;
constexpr std::size_t shortestPlace = 4;

bool isOneWord(std::string_view name) {
    return name.size() > 1 && name.find(' ') == std::string_view::npos && name.front() != '"';
}

void addUncommon(std::string_view name, WordList list, const CommonWords& common, LexiconBuilder& lexicon) {
    const std::string form = linguistics::normalForm(name);
    if (isOneWord(form) && common.count(form) == 0) lexicon.addToList(form, list);
}

// The localised and the romanised name are the columns `at` and `at` + 1.
ReadFault addNamesByCountry(const fs::path& file, std::size_t at, WordList list, const CommonWords& common,
                            LexiconBuilder& lexicon) {
    return eachLine(file, [&](std::string_view line) {
        const auto columns = partsOf(line, ',');
        if (columns.size() < at + 2 || columns[1] == "Rank" || columns[1] == "Country Group") return;
        addUncommon(columns[at], list, common, lexicon);
        addUncommon(columns[at + 1], list, common, lexicon);
    });
}

ReadFault addPlaces(const fs::path& file, const CommonWords& common, LexiconBuilder& lexicon) {
    return eachLine(file, [&](std::string_view line) {
        const auto columns = partsOf(line, ',');
        if (columns.size() < 3 || columns[0] == "name") return;
        if (columns[0].size() >= shortestPlace) addUncommon(columns[0], WordList::cityNames, common, lexicon);
        for (const std::string_view country : {columns[1], columns[2]})
            if (country.size() >= shortestPlace && isOneWord(country))
                lexicon.addToList(country, WordList::countryNames);
    });
}

} // namespace

ReadFault addNameList(const fs::path& file, WordList list, std::size_t most, const CommonWords& common,
                      LexiconBuilder& lexicon) {
    std::size_t number = 0;
    return eachLine(file, [&](std::string_view line) {
        const std::string_view name = partsOf(line, ' ').front();
        if (!line.starts_with('#') && ++number <= most) addUncommon(name, list, common, lexicon);
    });
}

ReadFault addGazetteers(const fs::path& folder, const CommonWords& common, bool american,
                        LexiconBuilder& lexicon) {
    const CommonWords none;
    for (const char* file : {"dist.female.first", "dist.male.first"})
        if (auto fault = addNameList(folder / file, WordList::givenNames, mostGivenNames, common, lexicon))
            return fault;
    if (american)
        if (auto fault =
                addNameList(folder / "dist.all.last", WordList::familyNames, mostFamilyNames, none, lexicon))
            return fault;
    if (auto fault = addNamesByCountry(folder / "common-forenames-by-country.csv", 10, WordList::givenNames,
                                       common, lexicon))
        return fault;
    if (auto fault = addNamesByCountry(folder / "common-surnames-by-country.csv", 4, WordList::familyNames,
                                       common, lexicon))
        return fault;
    return addPlaces(folder / "world-cities.csv", common, lexicon);
}

} // namespace lexiform::train
