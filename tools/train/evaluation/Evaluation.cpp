#include "tools/train/evaluation/Evaluation.h"

#include "tools/train/evaluation/GoldText.h"
#include "tools/train/evaluation/NameSpans.h"
#include "tools/train/evaluation/Squeezed.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace lexiform::train {

namespace {

using namespace linguistics;

using Span = std::pair<std::size_t, std::size_t>; // start and end

UniversalPos classOf(UniversalPos pos) {
    switch (pos) {
    case UniversalPos::AUX:
        return UniversalPos::VERB;
    case UniversalPos::PROPN:
        return UniversalPos::NOUN;
    case UniversalPos::SCONJ:
        return UniversalPos::CCONJ;
    case UniversalPos::SYM:
        return UniversalPos::X;
    default:
        return pos;
    }
}

bool hasPos(const GoldToken& token, UniversalPos pos) {
    return token.pos == pos ||
           std::find(token.furtherPos.begin(), token.furtherPos.end(), pos) != token.furtherPos.end();
}

bool hasClass(const GoldToken& token, UniversalPos pos) {
    const auto same = [&](UniversalPos own) { return classOf(own) == classOf(pos); };
    return (token.pos && same(*token.pos)) ||
           std::any_of(token.furtherPos.begin(), token.furtherPos.end(), same);
}

bool hasLemma(const GoldToken& token, std::string_view lemma) {
    return token.lemma == lemma || std::find(token.furtherLemmas.begin(), token.furtherLemmas.end(), lemma) !=
                                       token.furtherLemmas.end();
}

bool isLemmaKnown(const GoldToken& token) {
    return token.lemma || !token.furtherLemmas.empty();
}

/// An annotated text by place.
struct Gold {
    std::map<Span, const GoldToken*> tokens;
    std::vector<std::size_t> sentenceStarts;
    NameSpans names;
    std::size_t knownLemmas = 0;
};

/// What the engine makes of the same text.
struct Answer {
    std::vector<Span> spans;
    std::vector<UniversalPos> pos;
    std::vector<std::string> lemmas; ///< "_" where there is none
    std::vector<std::size_t> sentenceStarts;
    NameSpans names;
};

Gold goldOf(const Corpus& corpus, const GoldText& text, const Squeezed& squeezed) {
    Gold gold;
    NameGatherer names(gold.names);
    std::size_t number = 0;
    for (const GoldSentence& sentence : corpus) {
        for (const GoldToken& token : sentence.tokens) {
            const TextRange range = squeezed.of(text.tokens[number++]);
            if (range.length == 0) continue;
            gold.tokens.emplace(Span{range.start, range.end()}, &token);
            names.add(range, nameTypeOf(token.name), beginsName(token.name));
            gold.knownLemmas += isLemmaKnown(token);
        }
        names.close();
    }
    for (const std::size_t start : text.sentenceStarts)
        gold.sentenceStarts.push_back(squeezed.of({start, 0}).start);
    return gold;
}

Answer answerOf(const Engine& engine, std::string_view text, const Squeezed& squeezed) {
    Answer answer;
    NameGatherer names(answer.names);
    engine.analyse(text, [&](const Paragraph& paragraph) {
        for (const Token& token : paragraph.tokens) {
            const TextRange range = squeezed.of(token.range);
            if (isBlank(token) || range.length == 0) continue;
            answer.spans.emplace_back(range.start, range.end());
            answer.pos.push_back(token.pos);
            answer.lemmas.emplace_back(token.lemma.value_or("_"));
            if (token.startsSentence) answer.sentenceStarts.push_back(range.start);
            names.add(range, token.name, token.startsName);
        }
        names.close();
        return true;
    });
    return answer;
}

using Sentences = std::vector<Span>;

Sentences sentencesOf(const std::vector<std::size_t>& starts) {
    Sentences sentences;
    for (std::size_t i = 0; i < starts.size(); ++i)
        sentences.emplace_back(starts[i], i + 1 < starts.size() ? starts[i + 1] : std::string::npos);
    return sentences;
}

SpanCount common(const Sentences& system, const Sentences& gold) {
    SpanCount count{0, system.size(), gold.size()};
    for (const Span& one : system)
        count.right += std::binary_search(gold.begin(), gold.end(), one);
    return count;
}

SpanCount common(const NameSpans& system, const NameSpans& gold) {
    SpanCount count{0, system.size(), gold.size()};
    for (const auto& one : system)
        count.right += gold.count(one);
    return count;
}

RawTextFigures compared(const Answer& answer, const Gold& gold) {
    RawTextFigures figures;
    const SpanCount none{0, answer.spans.size(), gold.tokens.size()};
    figures.tokens = figures.pos = figures.lexicalClass = none;
    // A word whose lemma is not known is one that the system need not have found.
    const std::size_t unknown = gold.tokens.size() - gold.knownLemmas;
    figures.lemmas = {0, answer.spans.size() - std::min(unknown, answer.spans.size()), gold.knownLemmas};
    for (std::size_t i = 0; i < answer.spans.size(); ++i) {
        const auto found = gold.tokens.find(answer.spans[i]);
        if (found == gold.tokens.end()) continue;
        const GoldToken& token = *found->second;
        ++figures.tokens.right;
        figures.pos.right += hasPos(token, answer.pos[i]);
        figures.lexicalClass.right += hasClass(token, answer.pos[i]);
        figures.lemmas.right += isLemmaKnown(token) && hasLemma(token, answer.lemmas[i]);
    }
    figures.sentences = common(sentencesOf(answer.sentenceStarts), sentencesOf(gold.sentenceStarts));
    figures.names = common(answer.names, gold.names);
    return figures;
}

std::vector<std::string_view> formsOf(const GoldSentence& sentence) {
    std::vector<std::string_view> forms;
    for (const GoldToken& token : sentence.tokens)
        forms.push_back(token.form);
    return forms;
}

} // namespace

double SpanCount::f1() const {
    return right == 0 ? 0 : 200.0 * static_cast<double>(right) / static_cast<double>(system + gold);
}

GoldTokenFigures evaluateTokens(const SequenceModel& model, const Corpus& gold) {
    const auto tagger = model.tagger();
    GoldTokenFigures figures;
    NameSpans systemNames, goldNames;
    std::size_t number = 0;
    for (const GoldSentence& sentence : gold) {
        NameGatherer system(systemNames), right(goldNames);
        std::vector<WordLabels> labels(sentence.tokens.size());
        tagger->tag(formsOf(sentence), labels);
        for (std::size_t i = 0; i < labels.size(); ++i, ++number) {
            const GoldToken& token = sentence.tokens[i];
            if (token.pos) ++figures.pos.gold;
            figures.pos.right += hasPos(token, labels[i].pos);
            system.add({number, 1}, nameTypeOf(labels[i].name), beginsName(labels[i].name));
            right.add({number, 1}, nameTypeOf(token.name), beginsName(token.name));
        }
    }
    figures.pos.system = figures.pos.gold;
    figures.names = common(systemNames, goldNames);
    return figures;
}

RawTextFigures evaluateText(const Engine& engine, const Corpus& gold) {
    const GoldText text = textOf(gold);
    const Squeezed squeezed(text.text);
    return compared(answerOf(engine, text.text, squeezed), goldOf(gold, text, squeezed));
}

} // namespace lexiform::train
