#pragma once

#include "linguistics/LanguageSpan.h"
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
    void takeSentence(std::string_view text, ToldLanguage language, std::span<const Token> tokens,
                      std::size_t first, std::size_t end);
    void takeOtherScript(std::string_view stretch, std::size_t first, std::size_t end);
    void takeOtherScripts(std::string_view text, ToldLanguage language, std::span<const Token> tokens,
                          std::size_t first, std::size_t end);
    [[nodiscard]] bool isInAnotherScript(ToldLanguage language, std::span<const Token> sentence);
    [[nodiscard]] ToldLanguage languageByScript(std::string_view sentence, ToldLanguage around) const;
    void findQuotations(std::string_view text, std::span<const Token> tokens, std::size_t first,
                        std::size_t end);
    [[nodiscard]] std::string_view textOutsideQuotations(std::string_view text, std::span<const Token> tokens,
                                                         std::size_t first, std::size_t end);
    [[nodiscard]] bool looksOwn(std::string_view text, std::span<const Token> tokens) const;
    void put(ToldLanguage language, std::size_t first, std::size_t end);
    [[nodiscard]] ToldLanguage languageWithin(std::string_view stretch, ToldLanguage around) const;
    [[nodiscard]] bool isWrittenIn(std::string_view language, std::string_view script);

    const LanguageIdentifier& identifier_;
    std::string forced_;
    std::string_view mainScript_; ///< of the paragraph at hand
    WordSet commonWords_;         ///< likewise
    std::vector<LanguageSpan> spans_;
    std::vector<std::uint32_t> owners_;
    std::vector<LanguageSpan> foreign_; ///< words in another script that belong to their sentence
    // Of the sentence at hand: the long quotations, first token and one past the last; the text around.
    std::vector<std::pair<std::size_t, std::size_t>> quotations_;
    std::string outside_;
    std::map<std::string, std::vector<std::string_view>, std::less<>> scripts_; ///< by language
};

} // namespace lexiform::linguistics
