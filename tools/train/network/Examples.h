#pragma once

#include "tools/train/corpora/Corpus.h"
#include "tools/train/network/FormTable.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace lexiform::train {

/// A sentence in numbers. Labels of a kind that its corpus lacks are empty, and so are the likelihoods that
/// no teacher has given.
struct Example {
    std::vector<std::uint32_t> forms;          ///< of a `FormTable`
    std::vector<std::uint8_t> pos;             ///< `UniversalPos` of each word
    std::vector<std::uint8_t> names;           ///< `NameLabel`
    std::vector<std::uint16_t> fine, features; ///< of a `LabelTable`; 0 is no label
    std::vector<float> likelyPos, likelyNames; ///< for each word a number for each label
    float posWeight = 1, nameWeight = 1;
};

/// The labels of a kind that are frequent enough to be learned, by falling frequency from 1.
class LabelTable {
public:
    void count(const std::string& label) { ++counts_[label]; }
    /// Numbers those that were counted at least `least` times, `most` at most.
    void number(std::size_t least, std::size_t most);

    /// 0 for a label that has no number.
    [[nodiscard]] std::uint16_t find(const std::string& label) const;
    /// One more than the highest number.
    [[nodiscard]] std::size_t size() const { return numbers_.size() + 1; }

private:
    std::map<std::string, std::size_t> counts_;
    std::map<std::string, std::uint16_t> numbers_;
};

/// What the examples of a language share.
struct ExampleTables {
    FormTable forms;
    LabelTable fine, features;
};

/// The examples of a sentence, which is cut where it is very long. Its parts of speech are known if
/// `posWeight` is not 0, its names if `nameWeight` is not.
[[nodiscard]] std::vector<Example> examplesOf(const GoldSentence& sentence, float posWeight, float nameWeight,
                                              ExampleTables& tables);

} // namespace lexiform::train
