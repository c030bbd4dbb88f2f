// Holds the language identifier to its contract on any bytes: it gives a code that it knows or nothing, the
// same one every time, and looks at no more than its sample.

#include "base/fatalError.h"
#include "linguistics/language/LanguageIdentifier.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

namespace {

using namespace lexiform;
using namespace lexiform::linguistics;

void require(bool condition, std::string_view what) {
    if (!condition) fatalError(what);
}

LanguageIdentifier identifier() {
    const auto loaded =
        LanguageIdentifier::load(std::filesystem::path(LEXIFORM_MODELS_DIR) / "languages.lxi");
    return loaded.succeeded() ? loaded.value() : LanguageIdentifier();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const LanguageIdentifier trained = identifier();
    static const std::vector<std::string_view> known = trained.languagesKnown();
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const Guess guess = trained.guess(text);
    require(guess.language.empty() || std::binary_search(known.begin(), known.end(), guess.language),
            "a language is not among those known");
    require(guess.letters <= LetterText::largestSample, "more than a sample was looked at");
    require(guess.confidence() >= 0 && guess.confidence() <= 100, "a confidence is no percentage");
    const Guess again = trained.guess(text);
    require(again.language == guess.language && again.margin == guess.margin, "a guess changed");
    return 0;
}
