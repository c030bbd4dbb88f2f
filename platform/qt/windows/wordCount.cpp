#include "platform/qt/windows/wordCount.h"

#include <initializer_list>

namespace lexiform::qt {

std::int64_t wordCount(const ViewController& controller) {
    std::int64_t sum = 0;
    for (const WordDictionary* dictionary :
         {&controller.verbs, &controller.nouns, &controller.adjectives, &controller.adverbs,
          &controller.pronouns, &controller.determiners, &controller.particles, &controller.prepositions,
          &controller.conjunctions, &controller.names})
        for (const auto& [word, count] : *dictionary)
            sum += count;
    return sum;
}

} // namespace lexiform::qt
