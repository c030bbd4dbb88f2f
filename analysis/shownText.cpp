#include "analysis/shownText.h"

#include "analysis/collectTags.h"

namespace lexiform {

namespace {

constexpr int lemmaView = 4;

} // namespace

std::string_view shownText(const TaggedText& records, std::size_t position, int view) {
    const std::string* const text = view == lemmaView ? records.lemma(position) : records.word(position);
    return text == nullptr ? noTagValue : *text;
}

} // namespace lexiform
