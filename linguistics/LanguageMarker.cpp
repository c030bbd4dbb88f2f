#include "linguistics/LanguageMarker.h"

#include "linguistics/Scripts.h"
#include "linguistics/segmentation/LowerCasedHash.h"

#include <algorithm>
#include <array>

namespace lexiform::linguistics {

namespace {

// Of a hundred such guesses so many are right: enough to state, enough to believe that a paragraph is in
// another language than most of its text, and that a sentence or a quotation is in another than its
// paragraph.
constexpr int enoughToTell = 60;
constexpr int enoughAgainstTheText = 90;
constexpr int enoughToDiffer = 95;
constexpr std::uint32_t fewestLettersToDiffer = 20;

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

std::string_view stretchOf(std::string_view text, std::span<const Token> tokens) {
    const std::size_t start = tokens.front().range.start;
    return text.substr(start, tokens.back().range.end() - start);
}

/// What closes the quotation that `mark` opens; empty if it opens none.
std::string_view closingOf(std::string_view mark) {
    struct Pair {
        std::string_view opening, closing;
    };
    static constexpr std::array pairs = {Pair{"\"", "\""}, Pair{"“", "”"}, Pair{"„", "“"},
                                         Pair{"«", "»"},   Pair{"»", "«"}, Pair{"「", "」"}};
    for (const Pair& pair : pairs)
        if (mark == pair.opening) return pair.closing;
    return {};
}

/// The index of the first token from `from` on that is spelt `spelling`; `end` if there is none.
std::size_t findSpelt(std::string_view spelling, std::string_view text, std::span<const Token> tokens,
                      std::size_t from, std::size_t end) {
    while (from < end && substring(text, tokens[from].range) != spelling)
        ++from;
    return from;
}

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
    spans_.clear();
    foreign_.clear();
    commonWords_ = commonWords;
    owners_.assign(tokens.size(), 0);
    mainScript_ = mainScriptOf(tokens);
    std::size_t first = 0;
    for (std::size_t i = 1; i <= tokens.size(); ++i) {
        if (i < tokens.size() && !tokens[i].startsSentence) continue;
        takeSentence(text, language, tokens, first, i);
        first = i;
    }
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const LanguageSpan& span = spans_[owners_[i]];
        if (span.isTold) tokens[i].language = span.language;
    }
    for (const LanguageSpan& span : foreign_)
        for (std::size_t i = span.first; i < span.end; ++i)
            tokens[i].language = span.language;
}

void LanguageMarker::takeSentence(std::string_view text, ToldLanguage language, std::span<const Token> tokens,
                                  std::size_t first, std::size_t end) {
    if (!forced_.empty()) return put(language, first, end);
    findQuotations(text, tokens, first, end);
    const bool isWhole = first == 0 && end == tokens.size();
    const bool isOwn = isWhole || looksOwn(text, tokens.subspan(first, end - first));
    ToldLanguage own = isOwn && quotations_.empty()
                           ? language
                           : languageWithin(textOutsideQuotations(text, tokens, first, end), language);
    if (isInAnotherScript(own, tokens.subspan(first, end - first)))
        own = languageByScript(stretchOf(text, tokens.subspan(first, end - first)), own);
    put(own, first, end);
    for (const auto& [start, close] : quotations_) {
        const ToldLanguage within =
            languageWithin(stretchOf(text, tokens.subspan(start, close - start)), own);
        if (within.language != own.language) put(within, start, close);
    }
    takeOtherScripts(text, own, tokens, first, end);
}

// Words in another script than the sentence's are in another language. A few of them are still words of the
// sentence, and its model knows best what they are in it.
void LanguageMarker::takeOtherScript(std::string_view stretch, std::size_t first, std::size_t end) {
    const Guess guess = identifier_.guess(stretch);
    const bool isTold = guess.confidence() >= enoughToTell;
    if (isTold && guess.letters >= fewestLettersToDiffer) return put({guess.language, true}, first, end);
    foreign_.push_back({first, end, isTold ? guess.language : std::string_view(), isTold});
}

void LanguageMarker::takeOtherScripts(std::string_view text, ToldLanguage language,
                                      std::span<const Token> tokens, std::size_t first, std::size_t end) {
    const auto isOther = [&](std::size_t i) {
        return !tokens[i].script.empty() && !isWrittenIn(language.language, tokens[i].script);
    };
    for (std::size_t start = first; start < end; ++start) {
        if (!isOther(start)) continue;
        std::size_t next = start + 1;
        while (next < end && isOther(next))
            ++next;
        takeOtherScript(stretchOf(text, tokens.subspan(start, next - start)), start, next);
        start = next;
    }
}

bool LanguageMarker::isInAnotherScript(ToldLanguage language, std::span<const Token> sentence) {
    bool hasWords = false;
    for (const Token& token : sentence) {
        if (token.kind != TokenKind::word || token.script.empty()) continue;
        if (isWrittenIn(language.language, token.script)) return false;
        hasWords = true;
    }
    return hasWords;
}

// However short it is: a guess is better than the model of a language that has no such letters.
ToldLanguage LanguageMarker::languageByScript(std::string_view sentence, ToldLanguage around) const {
    const Guess guess = identifier_.guess(sentence);
    return guess.language.empty() ? around : ToldLanguage{guess.language, guess.confidence() >= enoughToTell};
}

void LanguageMarker::findQuotations(std::string_view text, std::span<const Token> tokens, std::size_t first,
                                    std::size_t end) {
    quotations_.clear();
    for (std::size_t i = first; i < end; ++i) {
        if (tokens[i].kind != TokenKind::punctuation) continue;
        const std::string_view closing = closingOf(substring(text, tokens[i].range));
        if (closing.empty()) continue;
        const std::size_t close = findSpelt(closing, text, tokens, i + 1, end);
        if (close == end) continue;
        const std::size_t length = tokens[close].range.start - tokens[i].range.end();
        if (length >= fewestLettersToDiffer) quotations_.emplace_back(i + 1, close);
        i = close;
    }
}

std::string_view LanguageMarker::textOutsideQuotations(std::string_view text, std::span<const Token> tokens,
                                                       std::size_t first, std::size_t end) {
    if (quotations_.empty()) return stretchOf(text, tokens.subspan(first, end - first));
    outside_.clear();
    for (const auto& [start, close] : quotations_) {
        if (start > first) outside_ += stretchOf(text, tokens.subspan(first, start - first));
        first = close;
    }
    return outside_ += stretchOf(text, tokens.subspan(first, end - first));
}

// Most words of a sentence are common ones of its language: to look for them costs little, and spares nearly
// every sentence the full question.
bool LanguageMarker::looksOwn(std::string_view text, std::span<const Token> tokens) const {
    std::size_t words = 0, common = 0;
    for (const Token& token : tokens) {
        if (token.kind != TokenKind::word) continue;
        ++words;
        common += commonWords_.holds(lowerCasedHash(substring(text, token.range))) ? 1 : 0;
        if (words == enoughWordsToLookAt) break;
    }
    return common * 2 >= words && !commonWords_.empty();
}

void LanguageMarker::put(ToldLanguage language, std::size_t first, std::size_t end) {
    std::fill(owners_.begin() + static_cast<std::ptrdiff_t>(first),
              owners_.begin() + static_cast<std::ptrdiff_t>(end), static_cast<std::uint32_t>(spans_.size()));
    spans_.push_back({first, end, language.language, language.isTold});
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
    auto found = scripts_.find(language);
    if (found == scripts_.end()) found = scripts_.emplace(language, scriptsOf(language)).first;
    return std::find(found->second.begin(), found->second.end(), script) != found->second.end();
}

} // namespace lexiform::linguistics
