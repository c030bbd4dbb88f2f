#pragma once

#include "linguistics/Engine.h"

#include <deque>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// A text and all that the engine says of it.
struct AnalysedText {
    std::string text;
    std::vector<Paragraph> paragraphs;
    std::deque<std::string> strings{}; ///< the languages and lemmas of the tokens

    [[nodiscard]] std::vector<Token> tokens() const;
    /// The tokens that are no white space and no line breaks, as they are spelt.
    [[nodiscard]] std::vector<std::string> words() const;
    /// The same joined by bars, sentences by double bars.
    [[nodiscard]] std::string cut() const;
    /// The token that is spelt so; the first of several. One must be there.
    [[nodiscard]] Token token(std::string_view spelling) const;
};

/// Analyses without any model, as text in `language` where one is given.
[[nodiscard]] AnalysedText analysedPlainly(std::string text, const std::string& language = "");
/// Analyses with the models of the project.
[[nodiscard]] AnalysedText analysed(std::string text);

/// What breaks the engine's contract on this text, empty if nothing does.
[[nodiscard]] std::string breachIn(const AnalysedText& analysed);

[[nodiscard]] bool isGap(const Token& token);

} // namespace lexiform::linguistics
