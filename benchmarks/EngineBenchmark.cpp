// Analyses a text several times and prints the best speed, in processor time, and the peak memory; then the
// speed at which it is cut into tokens and sentences, by rules and by the model of LANGUAGE (en if not
// given). Usage: EngineBenchmark TEXT MODELS-FOLDER [RUNS [LANGUAGE]]

#include "linguistics/Engine.h"
#include "linguistics/file/MappedFile.h"
#include "linguistics/segmentation/ParagraphSplitter.h"
#include "linguistics/segmentation/SegmentationModel.h"
#include "linguistics/segmentation/SentenceMarker.h"
#include "linguistics/segmentation/Tokeniser.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <vector>

namespace {

using namespace lexiform::linguistics;

struct Counts {
    std::size_t tokens = 0; ///< white space and line breaks left out
    std::size_t paragraphs = 0;
};

std::size_t visibleTokens(const std::vector<Token>& tokens) {
    return static_cast<std::size_t>(
        std::count_if(tokens.begin(), tokens.end(), [](const Token& token) { return !isBlank(token); }));
}

Counts analyse(const Engine& engine, const std::string& text) {
    Counts counts;
    engine.analyse(text, [&](const Paragraph& paragraph) {
        ++counts.paragraphs;
        counts.tokens += visibleTokens(paragraph.tokens);
        return true;
    });
    return counts;
}

std::size_t segment(const std::string& text, const std::string& language,
                    const LearnedSegmentation* learned) {
    Tokeniser tokeniser;
    std::vector<Token> tokens;
    std::size_t count = 0;
    for (std::size_t start = 0; start < text.size();) {
        const lexiform::TextRange paragraph = paragraphAt(text, start);
        tokens.clear();
        tokeniser.tokenise(substring(text, paragraph), start, language, learned, tokens);
        markSentences(text, tokens, learned);
        count += visibleTokens(tokens);
        start = paragraph.end();
    }
    return count;
}

// Processor time: the engine runs on one thread, and other programs slow down the clock on the wall.
double secondsSince(std::clock_t start) {
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

void printSegmentation(const char* what, const std::string& text, const std::string& language,
                       const LearnedSegmentation* learned, int runs) {
    double best = 1e9;
    std::size_t tokens = 0;
    for (int run = 0; run < runs; ++run) {
        const std::clock_t start = std::clock();
        tokens = segment(text, language, learned);
        best = std::min(best, secondsSince(start));
    }
    std::printf("tokens and sentences, %s: %.3f s, %.2f million tokens/s\n", what, best,
                static_cast<double>(tokens) / best / 1e6);
}

// A model without such sections, or none at all, leaves it at the rules.
void measureSegmentation(const std::string& text, const std::filesystem::path& folder,
                         const std::string& language, int runs) {
    printSegmentation("rules", text, language, nullptr, runs);
    const auto mapped = MappedFile::open(folder / (language + ".lxm"));
    if (!mapped.succeeded()) return;
    const auto file = ModelFile::over(mapped.value()->bytes());
    if (!file.succeeded()) return;
    const auto model = SegmentationModel::over(file.value());
    if (model.succeeded()) printSegmentation("learnt", text, language, &model.value().learned(), runs);
}

double peakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 3) return std::puts("usage: EngineBenchmark TEXT MODELS-FOLDER [RUNS]"), 2;
    std::ifstream input(arguments[1], std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(input), {}};
    const auto models = std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{arguments[2]});
    if (const auto check = models->check("en"); !check.succeeded())
        std::printf("without a model: %s\n", check.fault().reason.c_str());
    const Engine engine(models);
    const int runs = count > 3 ? std::max(1, std::atoi(arguments[3])) : 5;
    double best = 1e9;
    Counts counts;
    for (int run = 0; run < runs; ++run) {
        const std::clock_t start = std::clock();
        counts = analyse(engine, text);
        best = std::min(best, secondsSince(start));
    }
    std::printf("%zu bytes, %zu paragraphs, %zu tokens\n", text.size(), counts.paragraphs, counts.tokens);
    std::printf("%.3f s, %.2f million tokens/s, %.1f MB/s, peak memory %.0f MB\n", best,
                static_cast<double>(counts.tokens) / best / 1e6,
                static_cast<double>(text.size()) / best / 1e6, peakMegabytes());
    measureSegmentation(text, arguments[2], count > 4 ? arguments[4] : "en", runs);
    return 0;
}
