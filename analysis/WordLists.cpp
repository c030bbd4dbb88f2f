#include "analysis/ClassTable.h"
#include "analysis/ViewController.h"
#include "analysis/collectTags.h"
#include "analysis/putPaneText.h"
#include "analysis/shownText.h"
#include "analysis/sortedLines.h"
#include "base/Unicode.h"
#include "base/checkedSum.h"
#include "base/fatalError.h"

#include <algorithm>
#include <set>
#include <unordered_map>

namespace lexiform {

namespace {

// In the order of the dictionaries, which is that of the report and not that of the colour key.
constexpr std::array<std::string_view, 10> headings = {
    "Verbs",       "Nouns",     "Adjectives",   "Adverbs",      "Pronouns",
    "Determiners", "Particles", "Prepositions", "Conjunctions", "Names"};

// All views but that of the lemmas show words, as the lexical pass does.
constexpr int viewOfWords = 0;

/// The lemma of a record, or its word where it has none.
const std::string& keyOf(const TaggedText& records, std::size_t i) {
    const std::string* const lemma = records.lemma(i);
    if (lemma == nullptr) fatalError("a record has no lemma");
    if (*lemma != noLemmaValue) return *lemma;
    const std::string* const word = records.word(i);
    if (word == nullptr) fatalError("a record has neither lemma nor word");
    return *word;
}

// Without regard to case, but for "İ", whose lower case is two characters, which no search takes for one.
std::string searchedFor(std::string_view form) {
    std::string lower = lowerCased(form);
    return lower.size() == form.size() ? lower : std::string(form);
}

const std::string& tagOf(const TaggedText& records, std::size_t i, const std::vector<std::string>& indTypes) {
    const std::int64_t position = records.type(i);
    if (position < 0 || static_cast<std::size_t>(position) >= indTypes.size())
        fatalError("the type of a record lies outside its index");
    return indTypes[static_cast<std::size_t>(position)];
}

} // namespace

void ViewController::listConcButton() {
    if (!taggedText.empty()) recountTaggedText();
    std::string report;
    for (std::size_t i = 0; i < headings.size(); ++i)
        report += listWordDict(this->*wordDictionaries().at(i), headings.at(i));
    // The total grows with every listing until the next lexical pass sets it back.
    report += "\nTotal words classified = " + std::to_string(totWordC) + "\n";
    putPaneText(report, concordTextbox, PaneOperation::replace);
}

void ViewController::recountTaggedText() {
    clearWordDicts();
    for (std::size_t i = 0; i < taggedText.size(); ++i) {
        const std::string& key = keyOf(taggedText, i);
        countInClass(key, classRow(tagOf(taggedText, i, indTypes)), *this);
    }
}

std::vector<std::string> ViewController::formsListedAs(std::string_view word) const {
    const std::string wanted = lowerCased(word);
    std::set<std::string> forms;
    // Records share their strings, so each is looked at once.
    std::unordered_map<const std::string*, bool> isWanted;
    for (std::size_t i = 0; i < taggedText.size(); ++i) {
        const std::string& key = keyOf(taggedText, i);
        const auto [known, isNew] = isWanted.try_emplace(&key);
        if (isNew) known->second = lowerCased(key) == wanted;
        if (known->second)
            forms.insert(searchedFor(shownText(taggedText, i, shownView_.value_or(viewOfWords))));
    }
    std::vector<std::string> longestFirst(forms.begin(), forms.end());
    std::stable_sort(longestFirst.begin(), longestFirst.end(),
                     [](const auto& a, const auto& b) { return a.size() > b.size(); });
    return longestFirst;
}

std::string ViewController::listWordDict(const WordDictionary& dictionary, std::string_view heading) {
    if (dictionary.empty()) return "";
    std::vector<std::string> lines;
    lines.reserve(dictionary.size());
    std::int64_t classSum = 0;
    for (const auto& [word, count] : dictionary) {
        lines.push_back(word + " (" + std::to_string(count) + ")\n");
        classSum = checkedSum(classSum, count);
    }

    std::string section = "\n";
    section.append(heading).append(":\n");
    for (const std::string& line : sortedLines(std::move(lines)))
        section += line;
    section.append("\nTotal ").append(heading).append(" = ").append(std::to_string(classSum)).append("\n");
    totWordC = checkedSum(totWordC, classSum);
    return section;
}

} // namespace lexiform
