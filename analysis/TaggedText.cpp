#include "analysis/TaggedText.h"

#include "base/fatalError.h"

#include <limits>
#include <utility>

namespace lexiform {

namespace {

constexpr StringPool::Number absent = std::numeric_limits<StringPool::Number>::max();

std::int32_t narrowed(std::int64_t position) {
    if (!std::in_range<std::int32_t>(position)) fatalError("a position in an index is out of all bounds");
    return static_cast<std::int32_t>(position);
}

std::optional<std::string> copyOf(const std::string* string) {
    return string == nullptr ? std::nullopt : std::optional(*string);
}

} // namespace

void TaggedText::push_back(const tagComplex& record) {
    add(numberOf(record.word), record.script, record.lang, record.type, numberOf(record.lemma));
}

void TaggedText::push_back(std::string_view word, std::int64_t script, std::int64_t lang, std::int64_t type,
                           std::string_view lemma) {
    add(strings_.numberOf(word), script, lang, type, strings_.numberOf(lemma));
}

void TaggedText::add(StringPool::Number word, std::int64_t script, std::int64_t lang, std::int64_t type,
                     StringPool::Number lemma) {
    records_.push_back({word, narrowed(script), narrowed(lang), narrowed(type), lemma});
}

void TaggedText::clear() {
    strings_.clear();
    std::vector<Record>().swap(records_);
}

tagComplex TaggedText::operator[](std::size_t position) const {
    return {copyOf(word(position)), script(position), lang(position), type(position),
            copyOf(lemma(position))};
}

StringPool::Number TaggedText::numberOf(const std::optional<std::string>& string) {
    return string ? strings_.numberOf(*string) : absent;
}

const std::string* TaggedText::string(StringPool::Number number) const {
    return number == absent ? nullptr : &strings_[number];
}

} // namespace lexiform
