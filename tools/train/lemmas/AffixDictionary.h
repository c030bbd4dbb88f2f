#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

namespace lexiform::train {

/// A word of a spelling dictionary in one of its forms.
struct AffixedForm {
    std::string_view form, word;
    std::string_view flag; ///< what made the form; empty for the word as it stands
};

/// Expands a spelling dictionary in the format of Hunspell: `words`, a `.dic` file of words with flags, by
/// `affixes`, the `.aff` file that says what endings each flag stands for. Prefixes, and endings upon
/// endings, are left out. Tells `visitor` each word by itself, then its forms.
void forEachAffixedForm(const std::filesystem::path& affixes, const std::filesystem::path& words,
                        const std::function<void(const AffixedForm&)>& visitor);

} // namespace lexiform::train
