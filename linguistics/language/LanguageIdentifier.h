#pragma once

#include "base/Outcome.h"
#include "linguistics/file/MappedFile.h"
#include "linguistics/file/ModelFault.h"
#include "linguistics/language/LetterText.h"
#include "linguistics/language/NgramModel.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace lexiform::linguistics {

/// Which language a text seems to be in.
struct Guess {
    /// BCP 47, "zh" for Chinese in either script, "nb" for Norwegian Bokmål; empty where nothing tells.
    /// Lasts as long as the identifier.
    std::string_view language{};
    std::int32_t margin = 0;   ///< how much likelier than the next language: a logarithm, in `unitsPerNat`
    std::uint32_t letters = 0; ///< how many were looked at

    /// How sure the guess is, 0 to 100: the percentage of such guesses that should be right.
    [[nodiscard]] int confidence() const;
};

/// Tells the language of texts: by their script where only one language is written so, else by a model
/// of the languages that it was trained on, and for others and in doubt by the quadgram detector.
/// One identifier serves many threads.
class LanguageIdentifier {
public:
    /// Without a model: scripts and the quadgram detector alone.
    LanguageIdentifier() = default;

    /// With the model in `file`, which stays mapped as long as the identifier; or why it cannot be used.
    [[nodiscard]] static Outcome<LanguageIdentifier, ModelFault> load(const std::filesystem::path& file);

    /// The language that most of `text` is in: a quotation, a sentence or a paragraph; any bytes may come.
    /// Of long texts only a sample is looked at. Where `expected` names a language (that of the text
    /// around), another one must be clearly likelier.
    [[nodiscard]] Guess guess(std::string_view text, std::string_view expected = {}) const;

    /// The codes that `guess` may give, each once, in order.
    [[nodiscard]] std::vector<std::string_view> languagesKnown() const;

private:
    LanguageIdentifier(std::shared_ptr<const MappedFile> file, NgramModel model)
        : file_(std::move(file)), model_(model) {}

    [[nodiscard]] std::optional<Guess> quickGuess(std::string_view text, std::string_view expected) const;
    [[nodiscard]] Guess guessByWords(Writing writing, const LetterText& text,
                                     std::string_view expected) const;

    std::shared_ptr<const MappedFile> file_;
    std::optional<NgramModel> model_;
};

} // namespace lexiform::linguistics
