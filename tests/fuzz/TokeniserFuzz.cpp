// Holds the engine to its contract on any bytes: paragraphs cover the text, tokens cover their
// paragraph, and no token starts or ends inside a well-formed UTF-8 sequence. The same holds for what is
// cut by the rules of each language, and by whatever weights a model has; and a model's sections are
// either refused or safe to use.

#include "base/fatalError.h"
#include "linguistics/Engine.h"
#include "linguistics/segmentation/LowerCasedHash.h"
#include "linguistics/segmentation/ParagraphSplitter.h"
#include "linguistics/segmentation/SegmentationModel.h"
#include "linguistics/segmentation/SentenceMarker.h"
#include "linguistics/segmentation/Tokeniser.h"
#include "linguistics/text/Utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
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

constexpr std::string_view languages[] = {"",   "en", "de", "fr", "es", "it", "pt", "ru", "tr", "nl",
                                          "da", "sv", "nb", "fi", "ro", "ca", "id", "zh", "ko", "vi"};

/// Decides by chance, but alike for the same question.
class ArbitraryDecider final : public Decider {
public:
    [[nodiscard]] bool decide(std::size_t, std::span<const std::uint32_t> features) const override {
        return (features.back() * 0x9E3779B9U >> 31) != 0;
    }
};

void cut(std::string_view text, std::string_view language, const LearnedSegmentation* learned) {
    Tokeniser tokeniser;
    for (std::size_t start = 0; start < text.size();) {
        Paragraph paragraph{paragraphAt(text, start), {}};
        tokeniser.tokenise(substring(text, paragraph.range), start, language, learned, paragraph.tokens);
        markSentences(text, paragraph.tokens, learned);
        start = checkTokens(text, paragraph);
    }
}

void checkEveryLanguage(std::string_view text) {
    static const ArbitraryDecider decider;
    static const std::vector<std::uint32_t> endings = {lowerCasedHash("s")};
    static const std::vector<std::uint8_t> pairs(PairSet::bytes, 0xFF);
    LearnedSegmentation learned;
    learned.tokenEnds = learned.sentenceEnds = learned.spaceJoins = learned.characters = &decider;
    learned.endings = WordSet(endings);
    learned.endingPairs = PairSet(pairs);
    for (const std::string_view language : languages) {
        cut(text, language, nullptr);
        cut(text, language, &learned);
    }
}

// A model file of one section that holds the input: its first byte says which.
void checkSections(std::string_view input) {
    if (input.empty()) return;
    static std::vector<std::byte> bytes;
    const SectionRecord record{64U + static_cast<unsigned char>(input[0]) % 10U, segmentationVersion,
                               sizeof(ModelHeader) + sizeof(SectionRecord), input.size() - 1};
    bytes.assign(record.offset + record.size, std::byte{});
    std::memcpy(bytes.data() + sizeof(ModelHeader), &record, sizeof(record));
    std::memcpy(bytes.data() + record.offset, input.data() + 1, record.size);
    ModelHeader header;
    header.sectionCount = 1;
    header.fileSize = bytes.size();
    header.language = {'x', 'x'};
    std::memcpy(bytes.data(), &header, sizeof(header));
    header.checksum = checksumOf(bytes);
    std::memcpy(bytes.data(), &header, sizeof(header));
    const auto file = ModelFile::over(bytes);
    require(file.succeeded(), "a sound model file is refused");
    const auto model = SegmentationModel::over(file.value());
    if (model.succeeded()) cut(input, "en", &model.value().learned());
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
    checkEveryLanguage(text);
    checkSections(text);
    return 0;
}
