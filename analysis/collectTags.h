#pragma once

#include "analysis/StringList.h"
#include "analysis/ViewController.h"
#include "analysis/tagger/Tagger.h"

#include <optional>
#include <string_view>

namespace lexiform {

/// Stands in the lists of scripts, languages and types for a token without a tag.
inline constexpr std::string_view noTagValue = "[]";
/// Stands in the list of lemmas for a token without one; it keeps words apart in the lemma view.
inline constexpr std::string_view noLemmaValue = " ";

/// One token of the script enumeration: adds its text and its script to the controller's lists.
Next collectWordAndScript(std::optional<std::string_view> tag, TextRange token, std::string_view text,
                          ViewController& controller);

/// One token of another enumeration: adds its tag, or `fallback` when it has none, to `target`.
Next collectTag(std::optional<std::string_view> tag, StringList& target, std::string_view fallback);

} // namespace lexiform
