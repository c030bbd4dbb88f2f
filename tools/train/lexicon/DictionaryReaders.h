#pragma once

#include "tools/train/corpora/Lines.h"

#include <filesystem>
#include <functional>
#include <string_view>

namespace lexiform::train {

/// Takes a form that a dictionary lists and what it may be, as a letter: n noun, v verb, j adjective,
/// r adverb, and others that tell forms apart where a dictionary does.
using TakeForm = std::function<void(std::string_view form, char pos)>;

// Readers of the dictionaries, one for each layout. The fault says why the file cannot be read.

/// An object of parts of speech with lists of lemmas, {"adj": ["old", …], …}, or with objects whose keys
/// are forms, {"adj": {"older": ["old"], …}, …}.
[[nodiscard]] ReadFault readLemmaIndex(const std::filesystem::path& file, const TakeForm& take);

/// An object whose keys are forms, all of the part of speech `pos`.
[[nodiscard]] ReadFault readLemmaLookup(const std::filesystem::path& file, char pos, const TakeForm& take);

/// Lines of lemma, tab, form, tab, features such as V;PRS;3;SG.
[[nodiscard]] ReadFault readInflections(const std::filesystem::path& file, const TakeForm& take);

/// Lines of form, tab, lemma, tab, German tag such as SUB:NOM:SIN:MAS.
[[nodiscard]] ReadFault readGermanForms(const std::filesystem::path& file, const TakeForm& take);

/// Lines of form, tab, lemma, tab, Portuguese tag such as NCMS000.
[[nodiscard]] ReadFault readPortugueseForms(const std::filesystem::path& file, const TakeForm& take);

/// Lines of a Turkish root, with [P:Adj] and the like where it is no noun; verbs end in -mek or -mak.
[[nodiscard]] ReadFault readTurkishRoots(const std::filesystem::path& file, const TakeForm& take);

} // namespace lexiform::train
