#pragma once

#include "linguistics/LanguageSpan.h"
#include "linguistics/Quotations.h"
#include "linguistics/language/LanguageIdentifier.h"
#include "linguistics/segmentation/LearnedSegmentation.h"
#include "linguistics/text/Analysis.h"

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lexiform::linguistics {

/// A language, and whether the text tells it; else it is a guess to work with.
struct ToldLanguage {
    std::string_view language{}; ///< BCP 47; empty where there is not even a guess
    bool isTold = false;
};

/// Tells the languages of a paragraph: its own, and those of sentences and quotations in it that are long
/// enough to show another. Not for several threads at once.
class LanguageMarker {
public:
    /// A marker by `identifier`, which must outlive it. `forced` is the language of every text; empty where
    /// texts are to tell.
    LanguageMarker(const LanguageIdentifier& identifier, std::string_view forced)
        : identifier_(identifier), forced_(forced) {}

    /// The language of a paragraph of a text whose main language may be known; it lasts as long as
    /// `mainLanguage` and the identifier.
    [[nodiscard]] ToldLanguage languageOf(std::string_view paragraph, std::string_view mainLanguage) const;

    /// Finds the spans of a paragraph in `language` and sets the language of the tokens whose span tells
    /// it. Tokens have their kinds, scripts and sentence starts; their ranges count from the start of
    /// `text`. A span may lie within another one: `spans` and `owners` say what belongs to which.
    /// `commonWords` are those of the paragraph's language; there may be none.
    void mark(std::string_view text, ToldLanguage language, const WordSet& commonWords,
              std::span<Token> tokens);

    /// What the last call of `mark` found: one span for each sentence and those within it.
    [[nodiscard]] std::span<const LanguageSpan> spans() const { return spans_; }
    /// For each token the index of its span, the innermost that holds it.
    [[nodiscard]] std::span<const std::uint32_t> owners() const { return owners_; }

private:
    void takeSentence(TokenStretch sentence);
    [[nodiscard]] ToldLanguage languageOfSentence(TokenStretch sentence);
    [[nodiscard]] ToldLanguage languageOfQuotation(TokenStretch quotation, ToldLanguage around) const;
    void takeOtherScripts(std::string_view language, TokenStretch sentence);
    void takeOtherScript(TokenStretch stretch);
    void put(ToldLanguage language, TokenStretch stretch);

    [[nodiscard]] bool isInAnotherScript(std::string_view language, TokenStretch sentence);
    [[nodiscard]] bool isWrittenIn(std::string_view language, std::string_view script);
    [[nodiscard]] std::span<const std::string_view> scriptsWritten(std::string_view language);
    [[nodiscard]] bool keepsMainScript(std::string_view other, TokenStretch sentence);
    [[nodiscard]] bool looksOwn(std::span<const TokenStretch> stretches) const;
    [[nodiscard]] ToldLanguage languageByScript(std::string_view sentence, ToldLanguage around) const;
    [[nodiscard]] ToldLanguage languageWithin(std::string_view stretch, ToldLanguage around) const;
    [[nodiscard]] std::string_view textOf(TokenStretch stretch) const;
    [[nodiscard]] std::string_view joined(std::span<const TokenStretch> stretches);

    const LanguageIdentifier& identifier_;
    std::string forced_;
    // Of the paragraph at hand.
    std::string_view text_;
    std::span<const Token> tokens_;
    ToldLanguage language_;
    WordSet commonWords_; ///< of its language
    std::string_view mainScript_;
    bool isMixed_ = false; ///< whether it holds other scripts too
    std::vector<LanguageSpan> spans_;
    std::vector<std::uint32_t> owners_;
    /// Few words that their script gives a language, but which are analysed with their sentence.
    std::vector<std::pair<TokenStretch, std::string_view>> named_;
    Quotations quotations_; ///< of the sentence at hand
    std::string joined_;
    std::map<std::string, std::vector<std::string_view>, std::less<>> scripts_; ///< by language
};

} // namespace lexiform::linguistics
