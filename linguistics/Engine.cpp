#include "linguistics/Engine.h"

#include "linguistics/language/LanguageIdentifier.h"
#include "linguistics/text/AsciiText.h"

#include <utility>

namespace lexiform::linguistics {

namespace {

// A window parses one text at a time; a second analyser serves a pass within a pass.
constexpr std::size_t mostIdle = 2;

// What language a text is in is told from so many bytes of it, and stated where so many of a hundred such
// guesses are right.
constexpr std::size_t beginning = std::size_t{64} * 1024;
constexpr int enoughForTheText = 80;

// Models are for languages, whatever the country or the script; Norwegian by itself is mostly Bokmål.
std::string baseLanguage(std::string_view code) {
    std::string base(code.substr(0, code.find_first_of("-_")));
    for (char& letter : base)
        letter = asciiLower(letter);
    return base == "no" ? "nb" : base;
}

} // namespace

Engine::Engine(std::shared_ptr<const ModelStore> models, const EngineOptions& options)
    : models_(std::move(models)), options_{baseLanguage(options.language)} {}

void Engine::analyse(std::string_view text, const Visitor& visitor) const {
    analyse(text, contextOf(text), visitor);
}

void Engine::analyse(std::string_view text, const TextContext& context, const Visitor& visitor) const {
    analyse(text, context, Depth::lemmas, visitor);
}

void Engine::analyse(std::string_view text, const TextContext& context, Depth depth,
                     const Visitor& visitor) const {
    Analyser analyser = takeAnalyser();
    analyser.analyse(text, context, depth, visitor);
    giveBack(std::move(analyser));
}

Analyser Engine::takeAnalyser() const {
    const std::lock_guard lock(mutex_);
    if (idle_.empty()) return analyser();
    Analyser analyser = std::move(idle_.back());
    idle_.pop_back();
    return analyser;
}

void Engine::giveBack(Analyser analyser) const {
    const std::lock_guard lock(mutex_);
    if (idle_.size() < mostIdle) idle_.push_back(std::move(analyser));
}

TextContext Engine::contextOf(std::string_view text) const {
    if (!options_.language.empty()) return {.mainLanguage = options_.language};
    const Guess guess = models_->identifier().guess(text.substr(0, beginning));
    return {.mainLanguage = std::string(guess.confidence() >= enoughForTheText ? guess.language : "")};
}

} // namespace lexiform::linguistics
