#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

namespace lexiform::train {

/// Prints what the model in `file`, which is named for its language, scores on the development parts of the
/// unpacked corpora, where they are given, and on the annotated `texts`; and the `confusions` commonest
/// wrong parts of speech and wrong lemmas. What tells languages lies beside the model. Gives the exit status.
[[nodiscard]] int evaluateModel(const std::filesystem::path& file, const std::filesystem::path& corpora,
                                const std::vector<std::filesystem::path>& texts, std::size_t confusions);

} // namespace lexiform::train
