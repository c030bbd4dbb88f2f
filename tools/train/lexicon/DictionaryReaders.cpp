#include "tools/train/lexicon/DictionaryReaders.h"

#include "tools/train/lexicon/JsonStrings.h"

#include <array>
#include <utility>

namespace lexiform::train {

namespace {

namespace fs = std::filesystem;

char letterOf(std::string_view pos) {
    if (pos == "adj") return 'j';
    if (pos == "adv") return 'r';
    return pos.empty() ? '?' : pos.front();
}

using Letters = std::pair<std::string_view, char>;

template <std::size_t N>
char letterOf(std::string_view tag, const std::array<Letters, N>& letters) {
    for (const auto& [start, letter] : letters)
        if (tag.starts_with(start)) return letter;
    return 0;
}

template <std::size_t N>
ReadFault readFullForms(const fs::path& file, const std::array<Letters, N>& letters, const TakeForm& take) {
    return eachLine(file, [&](std::string_view line) {
        const auto columns = partsOf(line, '\t');
        if (line.starts_with('#') || columns.size() < 3) return;
        if (const char letter = letterOf(columns[2], letters)) take(columns[0], letter);
    });
}

} // namespace

ReadFault readLemmaIndex(const fs::path& file, const TakeForm& take) {
    std::string text;
    if (ReadFault fault = readWhole(file, text)) return fault;
    char pos = '?';
    eachString(text, [&](const std::string& string, std::size_t depth) {
        if (depth == 1)
            pos = letterOf(string);
        else if (depth == 2)
            take(string, pos);
    });
    return std::nullopt;
}

ReadFault readLemmaLookup(const fs::path& file, char pos, const TakeForm& take) {
    std::string text;
    if (ReadFault fault = readWhole(file, text)) return fault;
    bool isForm = true;
    eachString(text, [&](const std::string& string, std::size_t) {
        if (isForm) take(string, pos);
        isForm = !isForm;
    });
    return std::nullopt;
}

ReadFault readInflections(const fs::path& file, const TakeForm& take) {
    return eachLine(file, [&](std::string_view line) {
        const auto columns = partsOf(line, '\t');
        if (columns.size() < 3 || columns[2].empty()) return;
        const std::string_view tags = columns[2];
        if (tags.find("PTCP;PST") != std::string_view::npos)
            take(columns[1], 'p');
        else if (tags.find("PTCP;PRS") != std::string_view::npos)
            take(columns[1], 'g');
        else if (tags.find("PST") != std::string_view::npos)
            take(columns[1], 'd');
        else if (tags[0] == 'N')
            take(columns[1], 's');
        else if (tags.starts_with("V;PRS;3") || tags.find("3;SG") != std::string_view::npos)
            take(columns[1], 'z');
    });
}

ReadFault readGermanForms(const fs::path& file, const TakeForm& take) {
    // By the part of the tag that is plain ASCII.
    static constexpr std::array<Letters, 14> letters = {{
        {"SUB", 'n'},
        {"EIG", 'e'},
        {"ADJ", 'j'},
        {"PA1", 'p'},
        {"PA2", 'q'},
        {"VER:INF", 'i'},
        {"VER:EIZ", 'i'},
        {"VER", 'v'},
        {"ADV", 'r'},
        {"PRO", 'o'},
        {"PRP", 'a'},
        {"KON", 'c'},
        {"ART", 't'},
        {"ZAL", 'u'},
    }};
    return readFullForms(file, letters, take);
}

ReadFault readPortugueseForms(const fs::path& file, const TakeForm& take) {
    static constexpr std::array<Letters, 16> letters = {{
        {"NP", 'e'},
        {"NC", 'n'},
        {"AQ", 'j'},
        {"AO", 'u'},
        {"VMP", 'q'},
        {"VMG", 'g'},
        {"VMN", 'i'},
        {"VMS", 's'},
        {"VM", 'v'},
        {"R", 'r'},
        {"SP", 'a'},
        {"P", 'o'},
        {"D", 't'},
        {"C", 'c'},
        {"I", 'x'},
        {"Z", 'u'},
    }};
    return readFullForms(file, letters, take);
}

ReadFault readTurkishRoots(const fs::path& file, const TakeForm& take) {
    static constexpr std::array<Letters, 8> letters = {{
        {"Adj", 'j'},
        {"Adv", 'r'},
        {"Interj", 'x'},
        {"Conj", 'c'},
        {"Num", 'u'},
        {"Postp", 'a'},
        {"Pron", 'o'},
        {"Det", 't'},
    }};
    return eachLine(file, [&](std::string_view line) {
        const auto parts = partsOf(line, ' ');
        const std::size_t tag = line.find("P:");
        const char letter = tag == std::string_view::npos ? '\0' : letterOf(line.substr(tag + 2), letters);
        const bool verb = parts[0].ends_with("mek") || parts[0].ends_with("mak");
        if (!parts[0].empty()) take(parts[0], letter != '\0' ? letter : verb ? 'v' : 'n');
    });
}

} // namespace lexiform::train
