#pragma once

#include "tools/train/corpora/Corpus.h"
#include "tools/train/lexicon/LexiconBuilder.h"
#include "tools/train/lexicon/TurkishForms.h"
#include "tools/train/sources/Source.h"

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace lexiform::train {

/// Puts right what a tagger or another convention made of a text: a capitalised word of a name is a proper
/// noun; one whose suffixes leave only a verb is a verb, and one that no verb explains is none; a numeral is
/// a number. Words that are in no dictionary stay as they are, as do nouns made of verbs ("yemek", meal) that
/// the treebanks have as nouns.
class TurkishCorrector {
public:
    /// `forms` must outlive it; the nouns are those of `sources`.
    TurkishCorrector(const TurkishForms& forms, const std::vector<Source>& sources);

    void correct(Corpus& tagged) const;

private:
    [[nodiscard]] bool isDeverbal(const std::string& lemma) const;
    [[nodiscard]] bool isFormOfDeverbalNoun(const std::string& form) const;

    const TurkishForms& forms_;
    std::set<std::string> deverbalNouns_; ///< in lower case
};

/// Puts the tagged corpora right, then gives those that have names alone parts of speech, and adds open texts
/// that have them: those of a chain trained on the others, put right in their turn by names and by the
/// dictionaries below `corpora`. Tells `log` of the training; the fault says which file is missing or wrong.
[[nodiscard]] std::optional<std::string> addTurkishSilver(LanguageSources& sources, const Lexicon& lexicon,
                                                          const std::filesystem::path& corpora,
                                                          std::ostream& log);

} // namespace lexiform::train
