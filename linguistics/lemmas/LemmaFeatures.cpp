#include "linguistics/lemmas/LemmaFeatures.h"

#include "linguistics/text/Characters.h"
#include "linguistics/text/Utf8.h"

namespace lexiform::linguistics {

namespace {

// A row of marks longer than this opens no sentence; the search stays short on any text.
constexpr std::size_t mostOpeningMarks = 4;

bool isMark(const TaggedWord& word) {
    return word.pos == UniversalPos::PUNCT || word.pos == UniversalPos::SYM;
}

// Two capitals at the start are enough to tell: the question is asked of every word.
bool isInCapitals(std::string_view form) {
    if (form.size() < 2 ||
        (static_cast<unsigned char>(form[0]) < 0x80 && !isUpperCase(static_cast<unsigned char>(form[0]))))
        return false;
    const CodePoint first = codePointAt(form, 0);
    if (!isUpperCase(first.value) || first.length == form.size()) return false;
    return isUpperCase(codePointAt(form, first.length).value);
}

bool isShouted(std::span<const TaggedWord> sentence, std::size_t at) {
    if (!isInCapitals(sentence[at].form)) return false;
    return (at > 0 && isInCapitals(sentence[at - 1].form)) ||
           (at + 1 < sentence.size() && isInCapitals(sentence[at + 1].form));
}

} // namespace

WordPlace placeOf(std::span<const TaggedWord> sentence, std::size_t at) {
    if (isShouted(sentence, at)) return WordPlace::shouted;
    if (at == 0) return WordPlace::first;
    if (!isMark(sentence[at - 1])) return WordPlace::within;
    const std::size_t before = std::min(at, mostOpeningMarks);
    const auto nearest = sentence.subspan(at - before, before);
    const bool opens = before == at && std::all_of(nearest.begin(), nearest.end(), isMark);
    return opens ? WordPlace::first : WordPlace::afterMark;
}

} // namespace lexiform::linguistics
