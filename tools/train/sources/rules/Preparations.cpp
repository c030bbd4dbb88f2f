#include "tools/train/sources/rules/Preparations.h"

#include "linguistics/text/Characters.h"
#include "linguistics/text/Utf8.h"
#include "tools/train/corpora/Lines.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace lexiform::train {

namespace {

using linguistics::NameLabel;

bool continuesName(const GoldToken& token) {
    return token.name != NameLabel::outside && !beginsName(token.name);
}

bool endsHere(const GoldSentence& sentence, std::size_t next, std::size_t length, std::size_t longest) {
    const GoldToken& following = sentence.tokens[next];
    if (continuesName(following)) return false;
    if (length >= longest) return true;
    const bool capital = linguistics::isUpperCase(linguistics::codePointAt(following.form, 0).value);
    return capital && sentence.tokens[next - 1].form.ends_with('.');
}

void cut(GoldSentence& sentence, std::size_t longest, Corpus& into) {
    GoldSentence piece;
    piece.startsParagraph = sentence.startsParagraph;
    for (std::size_t i = 0; i < sentence.tokens.size(); ++i) {
        if (!piece.tokens.empty() && endsHere(sentence, i, piece.tokens.size(), longest)) {
            into.push_back(std::exchange(piece, {}));
        }
        piece.tokens.push_back(sentence.tokens[i]);
    }
    if (!piece.tokens.empty()) into.push_back(std::move(piece));
}

using Contractions = std::map<std::pair<std::string, std::string>, std::string>;

Contractions contractionsOf(std::string_view triples) {
    const auto words = partsOf(triples, ' ');
    Contractions contractions;
    for (std::size_t i = 0; i + 2 < words.size(); i += 3)
        contractions[{std::string(words[i]), std::string(words[i + 1])}] = words[i + 2];
    return contractions;
}

// The contraction with the capital that its first word has.
std::string casedLike(const std::string& first, std::string joined) {
    const bool capital = first.front() >= 'A' && first.front() <= 'Z';
    if (capital && joined.front() >= 'a' && joined.front() <= 'z')
        joined.front() = static_cast<char>(joined.front() - 'a' + 'A');
    return joined;
}

GoldToken contraction(GoldToken first, const GoldToken& second, const std::string& joined) {
    first.form = casedLike(first.form, joined);
    first.spaceAfter = second.spaceAfter;
    if (second.pos) first.furtherPos.push_back(*second.pos);
    if (second.lemma) first.furtherLemmas.push_back(*second.lemma);
    return first;
}

void contract(GoldSentence& sentence, const Contractions& contractions) {
    std::vector<GoldToken> tokens;
    for (std::size_t i = 0; i < sentence.tokens.size(); ++i) {
        GoldToken& token = sentence.tokens[i];
        if (i + 1 < sentence.tokens.size() && !token.form.empty()) {
            const GoldToken& next = sentence.tokens[i + 1];
            const auto found = contractions.find({lowerCased(token.form), next.form});
            if (found != contractions.end()) {
                tokens.push_back(contraction(std::move(token), next, found->second));
                ++i;
                continue;
            }
        }
        tokens.push_back(std::move(token));
    }
    sentence.tokens = std::move(tokens);
}

using TagCounts = std::map<linguistics::UniversalPos, std::size_t>;

std::map<std::string, TagCounts> tagsByForm(const Corpus& corpus) {
    std::map<std::string, TagCounts> tags;
    for (const GoldSentence& sentence : corpus)
        for (const GoldToken& token : sentence.tokens)
            if (token.pos) ++tags[lowerCased(token.form)][*token.pos];
    return tags;
}

// The commonest of `wanted` among `counts`, if all of them make the share.
std::optional<linguistics::UniversalPos> commonest(const TagCounts& counts, const Tags& wanted,
                                                   double share) {
    std::optional<linguistics::UniversalPos> best;
    std::size_t all = 0, found = 0, most = 0;
    for (const auto& [tag, count] : counts) {
        all += count;
        if (std::find(wanted.begin(), wanted.end(), tag) == wanted.end()) continue;
        found += count;
        if (count > most) best = tag;
        most = std::max(most, count);
    }
    return static_cast<double>(found) >= share * static_cast<double>(all) ? best : std::nullopt;
}

} // namespace

Preparation likeElsewhere(linguistics::UniversalPos from, Tags to, double share) {
    return [from, to = std::move(to), share](Corpus& corpus) {
        const auto tags = tagsByForm(corpus);
        for (GoldSentence& sentence : corpus)
            for (GoldToken& token : sentence.tokens)
                if (token.pos == from)
                    if (const auto own = commonest(tags.at(lowerCased(token.form)), to, share))
                        token.pos = own;
    };
}

Preparation cutSentences(std::size_t longest) {
    return [longest](Corpus& corpus) {
        Corpus pieces;
        for (GoldSentence& sentence : corpus)
            cut(sentence, longest, pieces);
        corpus = std::move(pieces);
    };
}

Preparation withoutSentencesWith(Condition unwanted) {
    return [unwanted = std::move(unwanted)](Corpus& corpus) {
        std::erase_if(corpus, [&](const GoldSentence& sentence) {
            const LookedAt looked(sentence);
            for (std::size_t at = 0; at < looked.size(); ++at)
                if (unwanted({looked, at})) return true;
            return false;
        });
    };
}

Preparation withoutWords(Condition unwanted) {
    return [unwanted = std::move(unwanted)](Corpus& corpus) {
        for (GoldSentence& sentence : corpus) {
            const LookedAt looked(sentence);
            std::vector<GoldToken> kept;
            for (std::size_t at = 0; at < looked.size(); ++at)
                if (!unwanted({looked, at})) kept.push_back(sentence.tokens[at]);
            sentence.tokens = std::move(kept);
        }
        std::erase_if(corpus, [](const GoldSentence& sentence) { return sentence.tokens.empty(); });
    };
}

Preparation everyNth(std::size_t nth) {
    return [nth](Corpus& corpus) {
        Corpus kept;
        for (std::size_t i = 0; i < corpus.size(); i += nth)
            kept.push_back(std::move(corpus[i]));
        corpus = std::move(kept);
    };
}

Preparation contracted(std::string_view triples) {
    return [contractions = contractionsOf(triples)](Corpus& corpus) {
        for (GoldSentence& sentence : corpus)
            contract(sentence, contractions);
    };
}

} // namespace lexiform::train
