// Analyses a text several times and prints the best speed and the peak memory.
// Usage: EngineBenchmark TEXT MODELS-FOLDER [RUNS]

#include "linguistics/Engine.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <sys/resource.h>

namespace {

using namespace lexiform::linguistics;

struct Counts {
    std::size_t tokens = 0; ///< white space and line breaks left out
    std::size_t paragraphs = 0;
};

Counts analyse(const Engine& engine, const std::string& text) {
    Counts counts;
    engine.analyse(text, [&](const Paragraph& paragraph) {
        ++counts.paragraphs;
        counts.tokens += static_cast<std::size_t>(
            std::count_if(paragraph.tokens.begin(), paragraph.tokens.end(), [](const Token& token) {
                return token.kind != TokenKind::whitespace && token.kind != TokenKind::lineBreak;
            }));
        return true;
    });
    return counts;
}

double seconds(std::chrono::steady_clock::duration time) {
    return std::chrono::duration<double>(time).count();
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
        const auto start = std::chrono::steady_clock::now();
        counts = analyse(engine, text);
        best = std::min(best, seconds(std::chrono::steady_clock::now() - start));
    }
    std::printf("%zu bytes, %zu paragraphs, %zu tokens\n", text.size(), counts.paragraphs, counts.tokens);
    std::printf("%.3f s, %.2f million tokens/s, %.1f MB/s, peak memory %.0f MB\n", best,
                static_cast<double>(counts.tokens) / best / 1e6,
                static_cast<double>(text.size()) / best / 1e6, peakMegabytes());
    return 0;
}
