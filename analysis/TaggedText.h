#pragma once

#include "analysis/tagComplex.h"
#include "base/StringPool.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform {

/// A list of `tagComplex` records, twenty bytes each, with each distinct word and lemma kept once.
class TaggedText {
public:
    /// Makes room for that many records.
    void reserve(std::size_t count) { records_.reserve(count); }
    /// Takes a copy of what `record` says. A position that does not fit 32 bits stops the program.
    void push_back(const tagComplex& record);
    /// The same for a record whose strings are both there.
    void push_back(std::string_view word, std::int64_t script, std::int64_t lang, std::int64_t type,
                   std::string_view lemma);
    void clear();

    [[nodiscard]] std::size_t size() const { return records_.size(); }
    [[nodiscard]] bool empty() const { return records_.empty(); }
    /// The record at a position below `size()`, by value.
    [[nodiscard]] tagComplex operator[](std::size_t position) const;

    /// The fields of the record at a position, without a copy: null for an absent string, which
    /// otherwise lasts until the list is cleared.
    [[nodiscard]] const std::string* word(std::size_t position) const {
        return string(records_[position].word);
    }
    [[nodiscard]] const std::string* lemma(std::size_t position) const {
        return string(records_[position].lemma);
    }
    [[nodiscard]] std::int64_t script(std::size_t position) const { return records_[position].script; }
    [[nodiscard]] std::int64_t lang(std::size_t position) const { return records_[position].lang; }
    [[nodiscard]] std::int64_t type(std::size_t position) const { return records_[position].type; }

private:
    struct Record {
        StringPool::Number word = 0;
        std::int32_t script = 0;
        std::int32_t lang = 0;
        std::int32_t type = 0;
        StringPool::Number lemma = 0;
    };

    void add(StringPool::Number word, std::int64_t script, std::int64_t lang, std::int64_t type,
             StringPool::Number lemma);
    [[nodiscard]] StringPool::Number numberOf(const std::optional<std::string>& string);
    [[nodiscard]] const std::string* string(StringPool::Number number) const;

    StringPool strings_;
    std::vector<Record> records_;
};

} // namespace lexiform
