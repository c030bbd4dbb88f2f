#include "linguistics/ParagraphTagger.h"

#include "linguistics/AsciiText.h"

#include <algorithm>

namespace lexiform::linguistics {

namespace {

// The script of every language that has a model so far.
constexpr std::string_view modelScript = "Latn";

// A figure has the script of the words around it but no letters of its own.
bool isModelWord(const Token& token) {
    return token.kind == TokenKind::word && token.script == modelScript && token.pos != UniversalPos::NUM;
}

bool isForeignWord(const Token& token) {
    return token.kind == TokenKind::word && token.script != modelScript;
}

bool isDigitsOnly(std::string_view word) {
    return std::all_of(word.begin(), word.end(), isAsciiDigit);
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

/// Whether the model cannot be right about a mark. "&" may be a conjunction, but a mark or an emoji that
/// the model has not seen is no noun, and the quotation marks of another language are punctuation.
bool isMistakenForMark(UniversalPos label, const Token& mark, std::string_view form) {
    if (isOpenClass(label)) return true;
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

ParagraphTagger::ParagraphTagger(const Model& model) : model_(model), tagger_(model.tagger()) {}

void ParagraphTagger::tag(std::string_view text, std::span<Token> tokens) {
    if (std::none_of(tokens.begin(), tokens.end(), isModelWord)) return;
    const LanguageGuess::Answer answer = guess(text, tokens);
    if (answer == LanguageGuess::Answer::no) return;
    tagSentences(text, tokens);
    if (answer == LanguageGuess::Answer::unclear) return;
    for (Token& token : tokens)
        if (token.script == modelScript) token.language = model_.language();
}

LanguageGuess::Answer ParagraphTagger::guess(std::string_view text, std::span<const Token> tokens) {
    LanguageGuess guess;
    for (const Token& token : tokens) {
        if (isModelWord(token)) guess.add(tagger_->entryOf(substring(text, token.range)));
        if (guess.hasEnough()) break;
    }
    return guess.answer();
}

void ParagraphTagger::tagSentences(std::string_view text, std::span<Token> tokens) {
    for (Token& token : tokens) {
        if (token.startsSentence) tagSentence();
        if (isBlank(token)) continue;
        words_.push_back(substring(text, token.range));
        wordTokens_.push_back(&token);
    }
    tagSentence();
}

void ParagraphTagger::tagSentence() {
    labels_.assign(words_.size(), WordLabels{});
    tagger_->tag(words_, labels_);
    keepMarksFromOtherClasses(wordTokens_, words_, labels_);
    keepNamesWithProperNouns(labels_);
    for (std::size_t i = 0; i < words_.size(); ++i) {
        Token& token = *wordTokens_[i];
        if (isForeignWord(token) || isDigitsOnly(words_[i])) continue;
        token.pos = labels_[i].pos;
        token.name = nameTypeOf(labels_[i].name);
        token.startsName = beginsName(labels_[i].name);
    }
    words_.clear();
    wordTokens_.clear();
}

} // namespace lexiform::linguistics
