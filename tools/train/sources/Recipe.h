#pragma once

#include "tools/train/sources/rules/Rule.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace lexiform::train {

/// Cuts, joins or leaves out sentences or tokens of a corpus.
using Preparation = std::function<void(Corpus&)>;

/// One file of annotated text, what it is good for and how it comes to its language's convention.
struct FileRecipe {
    /// Below the language's folder: CoNLL-U, or a list of names where it ends in .tsv.
    std::string file{};
    float tagWeight = 0;
    float lemmaWeight = 0;
    float nameWeight = 0;
    bool hasSpacing = false;
    std::vector<Preparation> preparations{}; ///< these first, in order
    Rules rules{};                           ///< then these
};

/// A file to choose by. Its annotation stays as it is; only its tokens may have to be made those of a text.
struct DevelopmentFile {
    // Implicit, so that a list of names of files is one of these.
    DevelopmentFile(const char* name, std::vector<Preparation> steps = {})
        : file(name), preparations(std::move(steps)) {}

    std::string file; ///< below the language's folder, as above
    std::vector<Preparation> preparations;
};

/// What the models of a language are made from.
struct Recipe {
    /// Where a sentence stands in several, the first counts.
    std::vector<FileRecipe> training{};
    std::vector<DevelopmentFile> development{};
    /// Running texts below the language's folder, a paragraph a line, the most fitting first.
    std::vector<std::string> openTexts{};
};

} // namespace lexiform::train
