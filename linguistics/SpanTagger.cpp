#include "linguistics/SpanTagger.h"

#include <algorithm>
#include <utility>

namespace lexiform::linguistics {

namespace {

/// Whether nothing but a number can be meant: a figure in digits that no model has seen.
bool isSurelyNumber(const Token& token, std::string_view form) {
    return token.pos == UniversalPos::NUM && static_cast<unsigned char>(form.front()) >= 0x80;
}

bool isOpenClass(UniversalPos pos) {
    switch (pos) {
    case UniversalPos::ADJ:
    case UniversalPos::ADV:
    case UniversalPos::INTJ:
    case UniversalPos::NOUN:
    case UniversalPos::PROPN:
    case UniversalPos::VERB:
        return true;
    default:
        return false;
    }
}

/// Most emoji lie in the planes whose characters take four bytes, and no punctuation does.
bool isPictograph(std::string_view form) {
    return static_cast<unsigned char>(form.front()) >= 0xF0;
}

/// Whether the model cannot be right about a mark. "&" may be a conjunction, but a mark or an emoji that
/// the model has not seen is no noun, and the quotation marks of another language are punctuation.
bool isMistakenForMark(UniversalPos label, const Token& mark, std::string_view form) {
    if (isOpenClass(label)) return true;
    if (isPictograph(form) && label == UniversalPos::PUNCT) return true;
    if (mark.kind != TokenKind::punctuation) return false;
    const bool isAscii = static_cast<unsigned char>(form.front()) < 0x80;
    return label == UniversalPos::X || (label == UniversalPos::SYM && !isAscii);
}

void keepMarksFromOtherClasses(std::span<Token* const> tokens, std::span<const std::string_view> forms,
                               std::span<WordLabels> labels) {
    for (std::size_t i = 0; i < tokens.size(); ++i)
        if (tokens[i]->kind != TokenKind::word && isMistakenForMark(labels[i].pos, *tokens[i], forms[i]))
            labels[i].pos = tokens[i]->pos;
}

// A name without a proper noun in it is a slip of the model.
void keepNamesWithProperNouns(std::span<WordLabels> labels) {
    for (std::size_t start = 0; start < labels.size();) {
        std::size_t end = start + 1;
        const NameType type = nameTypeOf(labels[start].name);
        while (end < labels.size() && !beginsName(labels[end].name) && nameTypeOf(labels[end].name) == type)
            ++end;
        const auto name = labels.subspan(start, end - start);
        const bool proper = std::any_of(name.begin(), name.end(), [](const WordLabels& label) {
            return label.pos == UniversalPos::PROPN;
        });
        if (!proper)
            for (WordLabels& label : name)
                label.name = NameLabel::outside;
        start = end;
    }
}

} // namespace

SpanTagger::SpanTagger(std::shared_ptr<const Model> model)
    : model_(std::move(model)), tagger_(model_->tagger()) {
    if (model_->lemmas() != nullptr) lemmas_.emplace(*model_->lemmas());
}

void SpanTagger::startParagraph() {
    if (lemmas_) lemmas_->startParagraph();
}

void SpanTagger::tag(std::string_view text, std::span<Token> tokens, std::span<const std::uint32_t> owners,
                     std::uint32_t owner, Depth depth) {
    gatherWords(text, tokens, owners, owner);
    if (words_.empty()) return;
    label();
    if (!model_->classifiers().empty()) markClassifiers();
    if (lemmas_ && depth >= Depth::lemmas) lemmatize();
}

void SpanTagger::gatherWords(std::string_view text, std::span<Token> tokens,
                             std::span<const std::uint32_t> owners, std::uint32_t owner) {
    words_.clear();
    wordTokens_.clear();
    isOwn_.clear();
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        if (isBlank(tokens[i])) continue;
        words_.push_back(substring(text, tokens[i].range));
        wordTokens_.push_back(&tokens[i]);
        isOwn_.push_back(owners[i] == owner);
    }
}

void SpanTagger::label() {
    labels_.assign(words_.size(), WordLabels{});
    tagger_->tag(words_, labels_);
    keepMarksFromOtherClasses(wordTokens_, words_, labels_);
    keepNamesWithProperNouns(labels_);
    for (std::size_t i = 0; i < words_.size(); ++i) {
        Token& token = *wordTokens_[i];
        if (!isOwn_[i] || isSurelyNumber(token, words_[i])) continue;
        token.pos = labels_[i].pos;
        token.name = nameTypeOf(labels_[i].name);
        token.startsName = beginsName(labels_[i].name);
    }
}

// A listed noun behind a number, or behind a determiner that counts, is a classifier.
void SpanTagger::markClassifiers() {
    for (std::size_t i = 1; i < words_.size(); ++i) {
        const UniversalPos before = wordTokens_[i - 1]->pos;
        const bool counted = before == UniversalPos::NUM || before == UniversalPos::DET;
        if (counted && isOwn_[i] && wordTokens_[i]->pos == UniversalPos::NOUN)
            wordTokens_[i]->isClassifier = model_->classifiers().holds(words_[i]);
    }
}

void SpanTagger::lemmatize() {
    taggedWords_.clear();
    for (std::size_t i = 0; i < words_.size(); ++i)
        taggedWords_.push_back({words_[i], wordTokens_[i]->pos});
    wordLemmas_.resize(words_.size());
    lemmas_->lemmatize(taggedWords_, wordLemmas_);
    for (std::size_t i = 0; i < words_.size(); ++i)
        if (isOwn_[i]) wordTokens_[i]->lemma = wordLemmas_[i];
}

} // namespace lexiform::linguistics
