#pragma once

#include "tools/train/sources/Recipe.h"

/// What each language is made from, by the language's name; one file for each.
namespace lexiform::train::recipes {

[[nodiscard]] Recipe catalan();
[[nodiscard]] Recipe chinese();
[[nodiscard]] Recipe danish();
[[nodiscard]] Recipe dutch();
[[nodiscard]] Recipe english();
[[nodiscard]] Recipe finnish();
[[nodiscard]] Recipe french();
[[nodiscard]] Recipe german();
[[nodiscard]] Recipe indonesian();
[[nodiscard]] Recipe italian();
[[nodiscard]] Recipe korean();
[[nodiscard]] Recipe norwegian();
[[nodiscard]] Recipe portuguese();
[[nodiscard]] Recipe romanian();
[[nodiscard]] Recipe russian();
[[nodiscard]] Recipe spanish();
[[nodiscard]] Recipe swedish();
[[nodiscard]] Recipe turkish();
[[nodiscard]] Recipe vietnamese();

} // namespace lexiform::train::recipes
