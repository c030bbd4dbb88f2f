#include "tools/train/sources/languages/TurkishWords.h"

#include "tools/train/sources/languages/TurkishEndings.h"
#include "tools/train/sources/rules/TurkishSuffixes.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace lexiform::train {

namespace {

using enum linguistics::UniversalPos;
using linguistics::UniversalPos;

/// What a corpus tells of lemmas.
class Lemmas {
public:
    explicit Lemmas(const Corpus& corpus) {
        for (const GoldSentence& sentence : corpus)
            for (const GoldToken& token : sentence.tokens)
                if (token.lemma && token.pos) count(token);
    }

    bool isVerbLemma(const std::string& lemma) const { return verbs_.count(lemma) != 0; }
    bool isNominalLemma(const std::string& lemma) const { return nominals_.count(lemma) != 0; }
    UniversalPos nominalOf(const std::string& lemma) const {
        const auto found = nominals_.find(lemma);
        if (found == nominals_.end()) return NOUN;
        UniversalPos best = NOUN;
        std::size_t most = 0;
        for (const auto& [pos, count] : found->second)
            if (count > most) {
                best = pos;
                most = count;
            }
        return best;
    }

private:
    void count(const GoldToken& token) {
        if (*token.pos == VERB && token.features.find("Polarity=") != std::string::npos)
            verbs_.insert(*token.lemma);
        else if (turkishLower(token.form) == *token.lemma && *token.pos != VERB)
            ++nominals_[*token.lemma][*token.pos];
    }

    std::set<std::string> verbs_;
    std::map<std::string, std::map<UniversalPos, std::size_t>> nominals_;
};

// Whether what the form has after its verbal lemma makes a participle, a verbal noun or a converb of it.
// The last letter of the lemma may have changed (git, gidip). Of a lemma that is a noun besides, what may be
// its case is none ("yere", to the place, of yer; yer- is to blame).
bool hasVerbalEnding(const std::string& form, const std::string& lemma, bool isNominalToo) {
    if (form == lemma) return false;
    std::size_t common = 0;
    while (common < lemma.size() && common < form.size() && lemma[common] == form[common])
        ++common;
    if (common + 2 < lemma.size()) return false;
    const std::string suffixes = harmonised(std::string_view(form).substr(lemma.size()));
    if (isNominalToo && isNounInflection(suffixes)) return false;
    return isParticiple(suffixes) || isConverb(suffixes);
}

// The copula of what is certain, "dır", has another lemma than those of past, hearsay and condition.
std::string_view copulaLemma(const std::string& copula) {
    for (const std::string_view certain : {"dır", "dir", "dur", "dür", "tır", "tir", "tur", "tür"})
        if (copula.starts_with(certain)) return "i";
    return copula.ends_with("ken") ? "i" : "y";
}

/// Splits and retags the words of one corpus.
class Splitter {
public:
    explicit Splitter(const Lemmas& lemmas) : lemmas_(lemmas) {}

    void split(GoldSentence& sentence) {
        tokens_.clear();
        for (GoldToken& token : sentence.tokens)
            add(std::move(token));
        sentence.tokens = std::move(tokens_);
    }

private:
    void add(GoldToken token) {
        const std::string form = turkishLower(token.form);
        if (!token.pos || !token.lemma) return keep(std::move(token));
        const bool finite = *token.pos == VERB && token.features.find("VerbForm=Fin") != std::string::npos;
        const bool verbal = token.features.find("Polarity=") != std::string::npos;
        if (finite && !verbal) return addPredicateNoun(std::move(token), form);
        if (finite) return addFiniteVerb(std::move(token), form);
        const bool nominal = *token.pos == NOUN || *token.pos == ADJ || *token.pos == ADV;
        if (nominal && lemmas_.isVerbLemma(*token.lemma) &&
            hasVerbalEnding(form, *token.lemma, lemmas_.isNominalLemma(*token.lemma)))
            token.pos = VERB;
        if (nominal && !token.lemma->ends_with("ki"))
            if (const std::size_t size = kiIn(form); size != 0)
                return addSplit(std::move(token), size, PART, "ki", std::nullopt);
        keep(std::move(token));
    }

    void addPredicateNoun(GoldToken token, const std::string& form) {
        const UniversalPos pos = lemmas_.nominalOf(*token.lemma);
        const std::size_t size = nounCopulaIn(form);
        if (size != 0 && form.size() - size + 1 >= token.lemma->size())
            return addSplit(std::move(token), size, AUX, copulaLemma(form.substr(form.size() - size)), pos);
        token.pos = pos;
        keep(std::move(token));
    }

    void addFiniteVerb(GoldToken token, const std::string& form) {
        const std::size_t size = verbCopulaIn(form);
        if (size != 0 && form.size() - size > token.lemma->size())
            return addSplit(std::move(token), size, AUX, copulaLemma(form.substr(form.size() - size)),
                            std::nullopt);
        keep(std::move(token));
    }

    void addSplit(GoldToken token, std::size_t size, UniversalPos pos, std::string_view lemma,
                  std::optional<UniversalPos> first) {
        GoldToken second = token;
        second.form = token.form.substr(token.form.size() - size);
        second.pos = pos;
        second.lemma = std::string(lemma);
        token.form.resize(token.form.size() - size);
        token.spaceAfter = false;
        if (first) token.pos = *first;
        if (pos == PART && *token.pos == ADJ) token.pos = NOUN;
        tokens_.push_back(std::move(token));
        tokens_.push_back(std::move(second));
    }

    void keep(GoldToken token) { tokens_.push_back(std::move(token)); }

    const Lemmas& lemmas_;
    std::vector<GoldToken> tokens_;
};

bool isAllCapitals(const std::string& form) {
    return turkishLower(form) != form;
}

} // namespace

Preparation turkishLowerCased() {
    return [](Corpus& corpus) {
        for (GoldSentence& sentence : corpus)
            for (GoldToken& token : sentence.tokens) {
                if (isAllCapitals(token.form)) token.form = turkishLower(token.form);
                if (token.lemma) token.lemma = turkishLower(*token.lemma);
            }
    };
}

Preparation turkishSplit() {
    return [](Corpus& corpus) {
        const Lemmas lemmas(corpus);
        Splitter splitter(lemmas);
        for (GoldSentence& sentence : corpus)
            splitter.split(sentence);
    };
}

} // namespace lexiform::train
