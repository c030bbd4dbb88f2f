#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace lexiform::train {

/// A line of a dictionary of Turkish roots.
struct TurkishRoot {
    std::string lemma; ///< of a verb without mek/mak
    bool isVerb = false;
    bool dropsVowel = false;       ///< the last one, before endings with a vowel: "kısım" makes "kısmı"
    bool takesFrontVowels = false; ///< in endings, against the harmony: "saat" makes "saatler"
};

/// The roots in `file`: one a line, verbs in the infinitive, marks after them in square brackets. None where
/// it cannot be read.
[[nodiscard]] std::vector<TurkishRoot> readTurkishRoots(const std::filesystem::path& file);

/// Tells `visitor` what may be a form of `root`; some are none, since no rule tells which.
void forEachTurkishForm(const TurkishRoot& root, const std::function<void(const std::string&)>& visitor);

} // namespace lexiform::train
