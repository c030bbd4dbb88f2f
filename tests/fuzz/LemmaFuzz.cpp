// Holds the lemmatizer to its contract on any model and any words: a damaged model is refused or reads
// within its bounds, and every word gets a lemma that is the same with and without a cache.

#include "base/fatalError.h"
#include "linguistics/lemmas/LemmaCache.h"
#include "tests/linguistics/lemmas/LemmaModelBytes.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace {

using namespace lexiform;
using namespace lexiform::linguistics;

// Words of up to 16 bytes, their tags from the bytes as well.
std::vector<TaggedWord> wordsOf(std::string_view text) {
    std::vector<TaggedWord> words;
    while (!text.empty()) {
        const std::size_t length =
            std::min<std::size_t>(1 + static_cast<unsigned char>(text[0]) % 16, text.size());
        const auto tag = static_cast<unsigned char>(text[length - 1]) % universalPosCount;
        words.push_back({text.substr(0, length), static_cast<UniversalPos>(tag)});
        text.remove_prefix(length);
    }
    return words;
}

void checkWords(const LemmaModel& model, std::string_view text) {
    const std::vector<TaggedWord> words = wordsOf(text);
    std::vector<std::string_view> lemmas(words.size());
    LemmaCache cache(model);
    Lemmatizer lemmatizer(model);
    cache.startParagraph();
    cache.lemmatize(words, lemmas);
    for (std::size_t at = 0; at < words.size(); ++at) {
        if (lemmas[at].empty()) fatalError("a word has an empty lemma");
        if (lemmatizer.lemmaOf(words, at).lemma != lemmas[at]) fatalError("the cache changes a lemma");
    }
}

// The first bytes say where the rules and the weights end; the rest are the words.
LemmaModelBytes modelOf(std::string_view& text, bool plausible) {
    LemmaModelBytes bytes;
    if (plausible) bytes.addRule(false, 0, 0, 0, "", "");
    if (plausible) bytes.addRule(false, 0, 1, 1, "a", "b");
    const std::size_t weights = text.empty() ? 0 : static_cast<unsigned char>(text[0]);
    for (std::size_t i = 0; i < weights && text.size() >= sizeof(std::uint64_t); ++i) {
        std::uint64_t value = 0;
        std::memcpy(&value, text.data(), sizeof(value));
        text.remove_prefix(sizeof(value));
        const std::size_t label = plausible ? value % (firstRuleLabel + 2) : value % mostLemmaLabels;
        bytes.addWeight(value >> 8, label, static_cast<int>(value >> 16) % LemmaWeight::largestRoot);
    }
    if (plausible) return bytes;
    const std::size_t rules = std::min<std::size_t>(text.size(), 64);
    bytes.rules.assign(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(rules));
    for (std::size_t i = 0; i + 1 < rules / 2; ++i)
        bytes.bucketStarts.push_back(static_cast<std::uint16_t>(text[i]));
    return bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto words = modelOf(text, size % 4 != 0).file();
    const auto file = ModelFile::over(std::as_bytes(std::span(words)));
    if (!file.succeeded()) fatalError("the model file is not as it was made");
    const auto model = LemmaModel::over(file.value());
    if (model.succeeded()) checkWords(model.value(), text);
    return 0;
}
