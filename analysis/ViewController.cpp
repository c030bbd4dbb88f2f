#include "analysis/ViewController.h"

#include <utility>

namespace lexiform {

ViewController::ViewController(TaggerFactory makeTagger) : makeTagger_(std::move(makeTagger)) {}

void ViewController::clearWordDicts() {
    for (WordDictionary* dictionary : {&verbs, &nouns, &adjectives, &adverbs, &pronouns, &determiners,
                                       &particles, &prepositions, &conjunctions, &names})
        dictionary->clear();
}

} // namespace lexiform
