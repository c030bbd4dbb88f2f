// Labels the sentences of a text with the network of a model in every kind of instructions that this
// processor has, and prints the best speed of each, and the speed with all words known from before. Usage:
// TaggerBenchmark TEXT MODEL-FILE [RUNS]

#include "linguistics/file/MappedFile.h"
#include "linguistics/network/NetworkTagger.h"
#include "linguistics/segmentation/ParagraphSplitter.h"
#include "linguistics/segmentation/SentenceMarker.h"
#include "linguistics/segmentation/Tokeniser.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace lexiform::linguistics;
using Sentences = std::vector<std::vector<std::string_view>>;

Sentences sentencesOf(std::string_view text) {
    Tokeniser tokeniser;
    Sentences sentences;
    std::vector<Token> tokens;
    for (std::size_t start = 0; start < text.size();) {
        const lexiform::TextRange paragraph = paragraphAt(text, start);
        tokens.clear();
        tokeniser.tokenise(substring(text, paragraph), start, "en", nullptr, tokens);
        markSentences(text, tokens);
        for (const Token& token : tokens) {
            if (token.startsSentence) sentences.emplace_back();
            if (!isBlank(token)) sentences.back().push_back(substring(text, token.range));
        }
        start = paragraph.end();
    }
    return sentences;
}

/// Tags all sentences; gives the processor's seconds for it.
double secondsOf(NetworkTagger& tagger, const Sentences& sentences) {
    std::vector<WordLabels> labels;
    const std::clock_t start = std::clock();
    for (const auto& sentence : sentences) {
        labels.resize(sentence.size());
        tagger.tag(sentence, labels);
    }
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

void measure(const NetworkModel& model, const NetworkKernels& kernels, const Sentences& sentences, int runs) {
    double fresh = 1e9, known = 1e9;
    for (int run = 0; run < runs; ++run) {
        NetworkTagger tagger(model, kernels);
        fresh = std::min(fresh, secondsOf(tagger, sentences));
        known = std::min(known, secondsOf(tagger, sentences));
    }
    std::size_t words = 0;
    for (const auto& sentence : sentences)
        words += sentence.size();
    const double millions = static_cast<double>(words) / 1e6;
    std::printf("  %.2f million words/s; %.2f with the cache of an earlier run\n", millions / fresh,
                millions / known);
}

} // namespace

int main(int count, char** arguments) {
    if (count < 3) return std::puts("usage: TaggerBenchmark TEXT MODEL-FILE [RUNS]"), 2;
    std::ifstream input(arguments[1], std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(input), {}};
    const auto mapped = MappedFile::open(arguments[2]);
    if (!mapped.succeeded()) return std::puts(mapped.fault().c_str()), 1;
    const auto file = ModelFile::over(mapped.value()->bytes());
    if (!file.succeeded()) return std::puts(file.fault().c_str()), 1;
    const auto model = NetworkModel::over(file.value());
    if (!model.succeeded()) return std::puts(model.fault().c_str()), 1;
    const Sentences sentences = sentencesOf(text);
    std::printf("%zu sentences; plain instructions first, the fastest last\n", sentences.size());
    for (const NetworkKernels* kernels : presentKernels())
        measure(model.value(), *kernels, sentences, count > 3 ? std::max(1, std::atoi(arguments[3])) : 3);
    return 0;
}
