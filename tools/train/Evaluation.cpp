#include "tools/train/Evaluation.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace lexiform::train {

namespace {

using namespace linguistics;

using NameSpan = std::tuple<std::size_t, std::size_t, NameType>;

/// A text with its annotation by place.
struct Annotation {
    std::map<TextRange, std::optional<UniversalPos>, decltype([](TextRange a, TextRange b) {
                 return std::tie(a.start, a.length) < std::tie(b.start, b.length);
             })>
        tokens;
    std::set<std::size_t> sentenceStarts;
    std::set<NameSpan> names;
};

struct AnnotatedText {
    std::string text;
    Annotation annotation;
};

/// Joins the words of names as they come.
class NameGatherer {
public:
    explicit NameGatherer(std::set<NameSpan>& names) : names_(names) {}
    ~NameGatherer() { close(); }
    NameGatherer(const NameGatherer&) = delete;
    NameGatherer& operator=(const NameGatherer&) = delete;

    void add(TextRange range, NameType type, bool begins) {
        if (type == NameType::none || begins || type != type_) close();
        if (type == NameType::none) return;
        if (type_ == NameType::none) start_ = range.start;
        type_ = type;
        end_ = range.end();
    }

private:
    void close() {
        if (type_ != NameType::none) names_.emplace(start_, end_, type_);
        type_ = NameType::none;
    }

    std::set<NameSpan>& names_;
    NameType type_ = NameType::none;
    std::size_t start_ = 0, end_ = 0;
};

AnnotatedText textOf(const Corpus& corpus) {
    AnnotatedText result;
    std::string& text = result.text;
    NameGatherer names(result.annotation.names);
    for (const GoldSentence& sentence : corpus) {
        if (sentence.startsParagraph && !text.empty())
            text += "\n\n";
        else if (!text.empty() && text.back() != ' ')
            text += ' ';
        result.annotation.sentenceStarts.insert(text.size());
        for (const GoldToken& token : sentence.tokens) {
            const TextRange range{text.size(), token.form.size()};
            result.annotation.tokens[range] = token.pos;
            names.add(range, nameTypeOf(token.name), beginsName(token.name));
            text += token.form;
            if (token.spaceAfter) text += ' ';
        }
        names.add({}, NameType::none, false);
    }
    return result;
}

Annotation annotationBy(const Engine& engine, std::string_view text) {
    Annotation annotation;
    NameGatherer names(annotation.names);
    engine.analyse(text, [&](const Paragraph& paragraph) {
        for (const Token& token : paragraph.tokens) {
            if (token.kind == TokenKind::whitespace || token.kind == TokenKind::lineBreak) continue;
            annotation.tokens[token.range] = token.pos;
            if (token.startsSentence) annotation.sentenceStarts.insert(token.range.start);
            names.add(token.range, token.name, token.startsName);
        }
        names.add({}, NameType::none, false);
        return true;
    });
    return annotation;
}

// A sentence is right where both its ends are.
SpanCount sentencesRight(const Annotation& system, const Annotation& gold) {
    SpanCount count{0, system.sentenceStarts.size(), gold.sentenceStarts.size()};
    for (auto start = gold.sentenceStarts.begin(); start != gold.sentenceStarts.end(); ++start) {
        const auto found = system.sentenceStarts.find(*start);
        if (found == system.sentenceStarts.end()) continue;
        const auto goldNext = std::next(start);
        const auto systemNext = std::next(found);
        const bool lastInGold = goldNext == gold.sentenceStarts.end();
        const bool lastInSystem = systemNext == system.sentenceStarts.end();
        if (lastInGold == lastInSystem && (lastInGold || *goldNext == *systemNext)) ++count.right;
    }
    return count;
}

template <typename Set>
SpanCount common(const Set& system, const Set& gold) {
    SpanCount count{0, system.size(), gold.size()};
    for (const auto& one : system)
        count.right += gold.count(one);
    return count;
}

void compareRawText(const Engine& engine, const AnnotatedText& gold, Figures& figures) {
    const Annotation system = annotationBy(engine, gold.text);
    figures.tokens = figures.pos = {0, system.tokens.size(), gold.annotation.tokens.size()};
    for (const auto& [range, pos] : system.tokens) {
        const auto found = gold.annotation.tokens.find(range);
        if (found == gold.annotation.tokens.end()) continue;
        ++figures.tokens.right;
        figures.pos.right += found->second == pos;
    }
    figures.sentences = sentencesRight(system, gold.annotation);
    figures.names = common(system.names, gold.annotation.names);
}

void compareGoldTokens(const Model& model, const Corpus& gold, Figures& figures) {
    const auto tagger = model.tagger();
    std::set<NameSpan> systemNames, goldNames;
    NameGatherer systemGatherer(systemNames), goldGatherer(goldNames);
    std::size_t right = 0, all = 0;
    for (const GoldSentence& sentence : gold) {
        const std::vector<std::string_view> words = [&] {
            std::vector<std::string_view> forms;
            for (const GoldToken& token : sentence.tokens)
                forms.push_back(token.form);
            return forms;
        }();
        std::vector<WordLabels> labels(words.size());
        tagger->tag(words, labels);
        for (std::size_t i = 0; i < words.size(); ++i, ++all) {
            right += labels[i].pos == sentence.tokens[i].pos;
            systemGatherer.add({all, 1}, nameTypeOf(labels[i].name), beginsName(labels[i].name));
            const NameLabel name = sentence.tokens[i].name;
            goldGatherer.add({all, 1}, nameTypeOf(name), beginsName(name));
        }
        systemGatherer.add({}, NameType::none, false);
        goldGatherer.add({}, NameType::none, false);
    }
    figures.posOnGoldTokens = all == 0 ? 0 : 100.0 * static_cast<double>(right) / static_cast<double>(all);
    figures.namesOnGoldTokens = common(systemNames, goldNames);
}

} // namespace

double SpanCount::f1() const {
    return right == 0 ? 0 : 200.0 * static_cast<double>(right) / static_cast<double>(system + gold);
}

Figures evaluate(const std::shared_ptr<const Model>& model, const Engine& engine, const Corpus& gold) {
    Figures figures;
    compareGoldTokens(*model, gold, figures);
    compareRawText(engine, textOf(gold), figures);
    return figures;
}

} // namespace lexiform::train
