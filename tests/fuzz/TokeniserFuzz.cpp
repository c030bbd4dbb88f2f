// Holds the engine to its contract on any bytes: paragraphs cover the text, tokens cover their
// paragraph, and no token starts or ends inside a well-formed UTF-8 sequence.

#include "base/fatalError.h"
#include "linguistics/Engine.h"
#include "linguistics/Utf8.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

namespace {

using namespace lexiform;
using namespace lexiform::linguistics;

void require(bool condition, std::string_view what) {
    if (!condition) fatalError(what);
}

// A continuation byte starts a token only where no lead byte within reach claims it.
bool startsInsideSequence(std::string_view text, std::size_t at) {
    if (at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80) return false;
    for (std::size_t back = 1; back <= 3 && back <= at; ++back) {
        const auto lead = static_cast<unsigned char>(text[at - back]);
        if ((lead & 0xC0) == 0x80) continue;
        const CodePoint point = codePointAt(text, at - back);
        return point.valid && point.length > back;
    }
    return false;
}

std::size_t checkTokens(std::string_view text, const Paragraph& paragraph) {
    std::size_t end = paragraph.range.start;
    bool sentence = false;
    for (const Token& token : paragraph.tokens) {
        require(token.range.start == end && token.range.length > 0, "tokens leave a gap or overlap");
        require(!startsInsideSequence(text, end), "a token starts inside a UTF-8 sequence");
        require(token.script.empty() || token.script.size() == 4, "a script is no ISO 15924 code");
        sentence = sentence || token.startsSentence;
        end = token.range.end();
    }
    require(sentence, "a paragraph starts no sentence");
    require(end == paragraph.range.end(), "tokens do not reach the end of their paragraph");
    return end;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    static const Engine engine(
        std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{LEXIFORM_MODELS_DIR}));
    std::size_t end = 0;
    engine.analyse(text, [&](const Paragraph& paragraph) {
        require(paragraph.range.start == end, "paragraphs leave a gap or overlap");
        end = checkTokens(text, paragraph);
        return true;
    });
    require(end == size, "paragraphs do not reach the end of the text");
    return 0;
}
