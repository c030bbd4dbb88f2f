#include "linguistics/language/LanguageIdentifier.h"

#include "linguistics/language/QuadgramDetector.h"
#include "linguistics/language/WordEvidence.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lexiform::linguistics {

namespace {

// How much a letter counts against letters of other scripts: syllables and words say more than sounds.
std::uint32_t weightOf(Writing writing) {
    if (writing == Writing::han || writing == Writing::hangul) return 3;
    return writing == Writing::kana ? 2 : 1;
}

struct MainWriting {
    Writing writing = Writing::none;
    std::uint32_t percent = 0; ///< of all letters, by weight
};

// Japanese mixes kana with han, so a few kana make han Japanese.
void mergeJapanese(std::array<std::uint32_t, writingCount>& weights, const LetterText& text) {
    constexpr std::uint32_t mostHanForKana = 20;
    auto& han = weights[static_cast<std::size_t>(Writing::han)];
    if (text.lettersIn(Writing::kana) * mostHanForKana < text.lettersIn(Writing::han)) return;
    if (text.lettersIn(Writing::kana) == 0) return;
    weights[static_cast<std::size_t>(Writing::kana)] += std::exchange(han, 0);
}

MainWriting mainWriting(const LetterText& text) {
    std::array<std::uint32_t, writingCount> weights{};
    std::uint32_t all = 0;
    for (std::size_t i = 0; i < writingCount; ++i) {
        const auto writing = static_cast<Writing>(i);
        weights[i] = text.lettersIn(writing) * weightOf(writing);
        all += weights[i];
    }
    mergeJapanese(weights, text);
    const auto most = std::max_element(weights.begin(), weights.end());
    return {static_cast<Writing>(most - weights.begin()), all == 0 ? 0 : *most * 100 / all};
}

// A letter of a script that one language has to itself is as good as many that languages share; one
// han character may be borrowed or Japanese.
Guess guessByScript(Writing writing, const LetterText& text) {
    const std::int32_t natsPerLetter = writing == Writing::han ? 1 : 3;
    const auto letters = static_cast<std::int32_t>(text.lettersIn(writing));
    return {onlyLanguageOf(writing), letters * natsPerLetter * unitsPerNat, text.letters()};
}

// Bytes of a longer text that are tried first: in a language that the model knows well they do.
constexpr std::size_t firstSample = 144;

} // namespace

int Guess::confidence() const {
    // The logistic function at each whole natural unit.
    constexpr std::array<int, 6> percents = {50, 73, 88, 95, 98, 99};
    if (language.empty()) return 0;
    const auto nats = static_cast<std::size_t>(std::max(0, margin) / unitsPerNat);
    return nats < percents.size() ? percents[nats] : 100;
}

Outcome<LanguageIdentifier, ModelFault> LanguageIdentifier::load(const std::filesystem::path& file) {
    const auto mapped = MappedFile::open(file);
    if (!mapped.succeeded()) return ModelFault{file, "it cannot be read: " + mapped.fault(), false};
    const auto sections = ModelFile::over(mapped.value()->bytes());
    if (!sections.succeeded()) return ModelFault{file, sections.fault(), false};
    const auto model = NgramModel::over(sections.value());
    if (!model.succeeded()) return ModelFault{file, model.fault(), false};
    return LanguageIdentifier(mapped.value(), model.value());
}

Guess LanguageIdentifier::guess(std::string_view text, std::string_view expected) const {
    if (text.size() > firstSample)
        if (const auto quick = quickGuess(text, expected)) return *quick;
    const LetterText letters(text);
    const MainWriting main = mainWriting(letters);
    if (main.writing == Writing::none || main.percent == 0) return {};
    Guess guess = onlyLanguageOf(main.writing).empty() ? guessByWords(main.writing, letters, expected)
                                                       : guessByScript(main.writing, letters);
    // Where scripts are mixed, each may be right for its own part.
    if (main.percent < 70) guess.margin = guess.margin * static_cast<std::int32_t>(main.percent) / 100;
    return guess;
}

std::optional<Guess> LanguageIdentifier::quickGuess(std::string_view text, std::string_view expected) const {
    constexpr std::uint32_t nearlyAll = 90;
    const LetterText letters(text, firstSample);
    const MainWriting main = mainWriting(letters);
    if (!model_ || main.percent < nearlyAll || !onlyLanguageOf(main.writing).empty()) return std::nullopt;
    const auto verdict = WordEvidence(*model_, letters, main.writing, expected).certainVerdict();
    if (!verdict) return std::nullopt;
    return Guess{verdict->language, verdict->margin, letters.letters()};
}

Guess LanguageIdentifier::guessByWords(Writing writing, const LetterText& text,
                                       std::string_view expected) const {
    if (model_) {
        const auto verdict = WordEvidence(*model_, text, writing, expected).verdict();
        return {verdict.language, verdict.margin, text.letters()};
    }
    const quadgrams::Answer answer = quadgrams::languageOf(text.utf8());
    return {answer.language, answer.reliable ? 4 * unitsPerNat : unitsPerNat, text.letters()};
}

std::vector<std::string_view> LanguageIdentifier::languagesKnown() const {
    std::vector<std::string_view> codes = quadgrams::languagesKnown();
    for (std::size_t i = 0; i < writingCount; ++i)
        if (const auto code = onlyLanguageOf(static_cast<Writing>(i)); !code.empty()) codes.push_back(code);
    if (model_)
        for (std::size_t i = 0; i < model_->languages().size(); ++i)
            codes.push_back(model_->codeOf(i));
    std::sort(codes.begin(), codes.end());
    codes.erase(std::unique(codes.begin(), codes.end()), codes.end());
    return codes;
}

} // namespace lexiform::linguistics
