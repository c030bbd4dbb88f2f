#include "linguistics/LanguageMarker.h"

#include "linguistics/Scripts.h"
#include "linguistics/segmentation/LowerCasedHash.h"

#include <algorithm>

namespace lexiform::linguistics {

namespace {

// Of a hundred such guesses so many are right: enough to state, enough to believe that a paragraph is in
// another language than most of its text, and that a sentence or a quotation is in another than its
// paragraph.
constexpr int enoughToTell = 60;
constexpr int enoughAgainstTheText = 90;
constexpr int enoughToDiffer = 95;
constexpr std::uint32_t fewestLettersToDiffer = 20;
// More than nearly all names and titles have.
constexpr std::ptrdiff_t fewestWordsToDiffer = 8;

constexpr std::size_t enoughWordsToLookAt = 12;

// What a text in the Latin script is taken for when nothing tells.
constexpr std::string_view fallback = "en";

/// The script of most of the words, by their length; empty where there are none.
std::string_view mainScriptOf(std::span<const Token> tokens) {
    std::vector<std::pair<std::string_view, std::size_t>> lengths;
    for (const Token& token : tokens) {
        if (token.kind != TokenKind::word || token.script.empty()) continue;
        auto found = std::find_if(lengths.begin(), lengths.end(),
                                  [&](const auto& entry) { return entry.first == token.script; });
        if (found == lengths.end()) found = lengths.insert(lengths.end(), {token.script, 0});
        found->second += token.range.length;
    }
    const auto most = std::max_element(lengths.begin(), lengths.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == lengths.end() ? std::string_view() : most->first;
}

/// Whether a token is a word and no figure.
bool isLettered(const Token& token) {
    return token.kind == TokenKind::word && token.pos != UniversalPos::NUM;
}

/// Whether most words of a text are common ones of its language. To look for them costs little, and spares
/// nearly every sentence and quotation the full question.
class CommonWordCount {
public:
    explicit CommonWordCount(const WordSet& common) : common_(common) {}

    void add(std::string_view text, std::span<const Token> tokens) {
        for (const Token& token : tokens) {
            if (words_ == enoughWordsToLookAt) return;
            if (token.kind != TokenKind::word) continue;
            ++words_;
            found_ += common_.holds(lowerCasedHash(substring(text, token.range))) ? 1 : 0;
        }
    }
    [[nodiscard]] bool isMost() const { return found_ * 2 >= words_ && !common_.empty(); }

private:
    const WordSet& common_;
    std::size_t words_ = 0, found_ = 0;
};

} // namespace

ToldLanguage LanguageMarker::languageOf(std::string_view paragraph, std::string_view mainLanguage) const {
    if (!forced_.empty()) return {forced_, true};
    const Guess guess = identifier_.guess(paragraph, mainLanguage);
    const bool isExpected = mainLanguage.empty() || guess.language == mainLanguage;
    if (!guess.language.empty() && guess.confidence() >= (isExpected ? enoughToTell : enoughAgainstTheText))
        return {guess.language, true};
    if (!mainLanguage.empty()) return {mainLanguage, true};
    return {guess.language.empty() ? fallback : guess.language, false};
}

void LanguageMarker::mark(std::string_view text, ToldLanguage language, const WordSet& commonWords,
                          std::span<Token> tokens) {
    text_ = text;
    tokens_ = tokens;
    language_ = language;
    commonWords_ = commonWords;
    mainScript_ = mainScriptOf(tokens);
    isMixed_ = std::any_of(tokens.begin(), tokens.end(), [&](const Token& token) {
        return !token.script.empty() && token.script != mainScript_;
    });
    spans_.clear();
    named_.clear();
    owners_.assign(tokens.size(), 0);
    std::size_t first = 0;
    for (std::size_t i = 1; i <= tokens.size(); ++i) {
        if (i < tokens.size() && !tokens[i].startsSentence) continue;
        takeSentence({first, i});
        first = i;
    }
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const LanguageSpan& span = spans_[owners_[i]];
        if (span.isTold) tokens[i].language = span.language;
    }
    for (const auto& [stretch, name] : named_)
        for (std::size_t i = stretch.first; i < stretch.end; ++i)
            tokens[i].language = name;
}

void LanguageMarker::takeSentence(TokenStretch sentence) {
    if (!forced_.empty()) return put(language_, sentence);
    quotations_.find(text_, tokens_, sentence, fewestLettersToDiffer);
    const ToldLanguage own = languageOfSentence(sentence);
    put(own, sentence);
    for (const TokenStretch& quotation : quotations_.quoted()) {
        const ToldLanguage within = languageOfQuotation(quotation, own);
        if (within.language != own.language) put(within, quotation);
    }
    if (isMixed_) takeOtherScripts(own.language, sentence);
}

ToldLanguage LanguageMarker::languageOfSentence(TokenStretch sentence) {
    const auto around = quotations_.around();
    const bool isParagraph = sentence.end - sentence.first == tokens_.size() && around.size() == 1;
    ToldLanguage own =
        isParagraph || looksOwn(around) ? language_ : languageWithin(joined(around), language_);
    if (own.language != language_.language && keepsMainScript(own.language, sentence)) own = language_;
    return isInAnotherScript(own.language, sentence) ? languageByScript(textOf(sentence), own) : own;
}

ToldLanguage LanguageMarker::languageOfQuotation(TokenStretch quotation, ToldLanguage around) const {
    if (around.language == language_.language && looksOwn({&quotation, 1})) return around;
    return languageWithin(textOf(quotation), around);
}

void LanguageMarker::takeOtherScripts(std::string_view language, TokenStretch sentence) {
    const auto isOther = [&](std::size_t i) {
        return !tokens_[i].script.empty() && !isWrittenIn(language, tokens_[i].script);
    };
    for (std::size_t first = sentence.first; first < sentence.end; ++first) {
        if (!isOther(first)) continue;
        std::size_t end = first + 1;
        while (end < sentence.end && isOther(end))
            ++end;
        takeOtherScript({first, end});
        first = end;
    }
}

// A few words in another script, a name or a title, are words of the sentence: its model knows best what they
// are in it, and only a script that one language has to itself tells another.
void LanguageMarker::takeOtherScript(TokenStretch stretch) {
    const auto tokens = stretch.of(tokens_);
    if (std::count_if(tokens.begin(), tokens.end(), isLettered) < fewestWordsToDiffer) {
        const std::string_view only = onlyLanguageOf(tokens.front().script);
        if (!only.empty()) named_.push_back({stretch, only});
        return;
    }
    const Guess guess = identifier_.guess(textOf(stretch));
    if (guess.letters >= fewestLettersToDiffer && guess.confidence() >= enoughToTell)
        put({guess.language, true}, stretch);
}

bool LanguageMarker::isInAnotherScript(std::string_view language, TokenStretch sentence) {
    if (!isMixed_) return false;
    bool hasWords = false;
    for (const Token& token : sentence.of(tokens_)) {
        if (token.kind != TokenKind::word || token.script.empty()) continue;
        if (isWrittenIn(language, token.script)) return false;
        hasWords = true;
    }
    return hasWords;
}

// A sentence with a long name or title in it may hold more letters of that than of its own.
bool LanguageMarker::keepsMainScript(std::string_view other, TokenStretch sentence) {
    const auto scripts = scriptsWritten(other);
    if (std::find(scripts.begin(), scripts.end(), mainScript_) != scripts.end()) return false;
    std::size_t words = 0, main = 0;
    for (const Token& token : sentence.of(tokens_)) {
        if (!isLettered(token)) continue;
        ++words;
        main += token.script == mainScript_ ? 1 : 0;
    }
    return main * 3 >= words;
}

// However short it is: a guess is better than the model of a language that has no such letters.
ToldLanguage LanguageMarker::languageByScript(std::string_view sentence, ToldLanguage around) const {
    const Guess guess = identifier_.guess(sentence);
    return guess.language.empty() ? around : ToldLanguage{guess.language, guess.confidence() >= enoughToTell};
}

bool LanguageMarker::looksOwn(std::span<const TokenStretch> stretches) const {
    CommonWordCount count(commonWords_);
    for (const TokenStretch& stretch : stretches)
        count.add(text_, stretch.of(tokens_));
    return count.isMost();
}

std::string_view LanguageMarker::textOf(TokenStretch stretch) const {
    const std::size_t start = tokens_[stretch.first].range.start;
    return text_.substr(start, tokens_[stretch.end - 1].range.end() - start);
}

std::string_view LanguageMarker::joined(std::span<const TokenStretch> stretches) {
    if (stretches.size() == 1) return textOf(stretches.front());
    joined_.clear();
    for (const TokenStretch& stretch : stretches)
        joined_ += textOf(stretch);
    return joined_;
}

void LanguageMarker::put(ToldLanguage language, TokenStretch stretch) {
    std::fill(owners_.begin() + static_cast<std::ptrdiff_t>(stretch.first),
              owners_.begin() + static_cast<std::ptrdiff_t>(stretch.end),
              static_cast<std::uint32_t>(spans_.size()));
    spans_.push_back({stretch.first, stretch.end, language.language, language.isTold});
}

ToldLanguage LanguageMarker::languageWithin(std::string_view stretch, ToldLanguage around) const {
    if (stretch.size() < fewestLettersToDiffer) return around;
    const Guess guess = identifier_.guess(stretch, around.language);
    const bool differs = guess.language != around.language && guess.letters >= fewestLettersToDiffer &&
                         guess.confidence() >= enoughToDiffer;
    return differs ? ToldLanguage{guess.language, true} : around;
}

bool LanguageMarker::isWrittenIn(std::string_view language, std::string_view script) {
    if (script == mainScript_) return true;
    const auto scripts = scriptsWritten(language);
    return std::find(scripts.begin(), scripts.end(), script) != scripts.end();
}

std::span<const std::string_view> LanguageMarker::scriptsWritten(std::string_view language) {
    auto found = scripts_.find(language);
    if (found == scripts_.end()) found = scripts_.emplace(language, scriptsOf(language)).first;
    return found->second;
}

} // namespace lexiform::linguistics
