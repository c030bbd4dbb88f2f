#include "analysis/ClassTable.h"

#include "analysis/tagger/LexicalTag.h"
#include "base/Unicode.h"

#include <algorithm>
#include <array>

namespace lexiform {

namespace {

using Key = ClassRow::Key;
using VC = ViewController;

// Idioms share the adjectives' colour, numbers the particles', classifiers and interjections the
// conjunctions': they are coloured but not counted. Names keep their capitals and the text colour.
constexpr std::array<ClassRow, 16> rows = {{
    {NLTagVerb, &VC::verbs, Key::lowerCased, Colour::red},
    {NLTagNoun, &VC::nouns, Key::lowerCased, Colour::blue},
    {NLTagAdjective, &VC::adjectives, Key::lowerCased, Colour::green},
    {NLTagIdiom, nullptr, Key::none, Colour::green},
    {NLTagAdverb, &VC::adverbs, Key::lowerCased, Colour::purple},
    {NLTagPronoun, &VC::pronouns, Key::lowerCased, Colour::yellow},
    {NLTagDeterminer, &VC::determiners, Key::lowerCased, Colour::brown},
    {NLTagParticle, &VC::particles, Key::lowerCased, Colour::gray},
    {NLTagNumber, nullptr, Key::none, Colour::gray},
    {NLTagPreposition, &VC::prepositions, Key::lowerCased, Colour::pink},
    {NLTagConjunction, &VC::conjunctions, Key::lowerCased, Colour::orange},
    {NLTagClassifier, nullptr, Key::none, Colour::orange},
    {NLTagInterjection, nullptr, Key::none, Colour::orange},
    {NLTagPersonalName, &VC::names, Key::asWritten, Colour::text},
    {NLTagOrganizationName, &VC::names, Key::asWritten, Colour::text},
    {NLTagPlaceName, &VC::names, Key::asWritten, Colour::text},
}};

constexpr ClassRow anyOtherTag = {"", nullptr, Key::none, Colour::gray};

} // namespace

const ClassRow& classRow(std::string_view tag) {
    const auto* const row = std::find_if(rows.begin(), rows.end(),
                                         [tag](const ClassRow& candidate) { return candidate.tag == tag; });
    return row == rows.end() ? anyOtherTag : *row;
}

void countInClass(std::string_view word, const ClassRow& row, ViewController& controller) {
    switch (row.key) {
    case Key::none:
        return;
    case Key::lowerCased:
        return countWord(controller.*row.dictionary, lowerCased(word));
    case Key::asWritten:
        return countWord(controller.*row.dictionary, word);
    }
}

} // namespace lexiform
