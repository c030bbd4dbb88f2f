#pragma once

#include <filesystem>
#include <vector>

namespace lexiform::train {

/// Trains what tells languages from the unpacked corpora and writes it to `languages.lxi` in `folder`. Gives
/// the exit status.
[[nodiscard]] int trainLanguages(const std::filesystem::path& corpora, const std::filesystem::path& folder);

/// Prints how often what `file` holds tells the language of the development sentences of the unpacked
/// corpora, where they are given, and of the lines of `lists`: a code, a tab, a text. Gives the exit status.
[[nodiscard]] int evaluateLanguages(const std::filesystem::path& file, const std::filesystem::path& corpora,
                                    const std::vector<std::filesystem::path>& lists);

} // namespace lexiform::train
