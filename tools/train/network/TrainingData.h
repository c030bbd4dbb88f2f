#pragma once

#include "tools/train/network/Examples.h"
#include "tools/train/network/OpenText.h"
#include "tools/train/network/Vocabulary.h"
#include "tools/train/sources/Source.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace lexiform::train {

/// The sources of a language in numbers.
struct TrainingData {
    ExampleTables tables;
    std::vector<Example> annotated;
    /// Sentences of the sources that teach neither parts of speech nor names.
    OpenText unannotated;
    /// Of the open texts, by file.
    std::vector<OpenText> open;
    std::vector<std::vector<Example>> development;
    std::vector<std::string> developmentNames;
    std::optional<std::string> fault; ///< why an open text could not be read

    /// Takes of each open text as many paragraphs as `openBytes` hold.
    TrainingData(const LanguageSources& sources, std::size_t openBytes);

    [[nodiscard]] FormCounts counts() const;

private:
    void addLabels(const LanguageSources& sources);
    void addSource(const Source& source);
};

} // namespace lexiform::train
