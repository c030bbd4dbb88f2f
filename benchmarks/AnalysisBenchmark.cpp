// Measures the passes of a document window on a text: AnalysisBenchmark TEXT [RUNS [lexical]]. Prints the
// best processor time of several runs of each pass, or of the lexical pass alone, without any desktop, and
// the memory that they take.

#include "linguistics/Engine.h"
#include "platform/linguistics/LinguisticTagger.h"
#include "platform/linguistics/modelFolders.h"
#include "tools/lexiform-cli/HeadlessWindow.h"

#include <sys/resource.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>

namespace {

using namespace lexiform;

// Processor time: a pass runs on one thread, and other programs slow down the clock on the wall.
double bestSeconds(int runs, const std::function<void()>& pass) {
    double best = 1e9;
    for (int i = 0; i < runs; ++i) {
        const std::clock_t began = std::clock();
        pass();
        best = std::min(best, static_cast<double>(std::clock() - began) / CLOCKS_PER_SEC);
    }
    return best;
}

double residentMegabytes() {
    long pages = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return static_cast<double>(resident) * 4096 / 1e6;
}

double peakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024 / 1e6;
}

void print(const char* what, double value, const char* unit) {
    std::printf("%-24s %9.3f %s\n", what, value, unit);
}

/// Distinct words in no order, some of them with accents.
void fill(WordDictionary& dictionary, std::size_t count) {
    std::uint64_t state = 1;
    while (dictionary.size() < count) {
        std::string word;
        for (std::uint64_t rest = state = state * 6364136223846793005ULL + 1442695040888963407ULL; rest > 999;
             rest /= 41) {
            const auto letter = static_cast<char>(rest % 26);
            word += letter == 4 && word.size() % 3 == 0 ? std::string("\u00E9")
                                                        : std::string(1, static_cast<char>('a' + letter));
        }
        ++dictionary[word];
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("AnalysisBenchmark TEXT [RUNS [lexical]]\n", stderr);
        return 2;
    }
    std::ifstream input(argv[1], std::ios::binary);
    if (!input) {
        std::fprintf(stderr, "cannot read %s\n", argv[1]);
        return 1;
    }
    const std::string text{std::istreambuf_iterator<char>(input), {}};
    const int runs = argc > 2 ? std::atoi(argv[2]) : 3;
    const auto models = std::make_shared<const linguistics::ModelStore>(modelFolders());
    cli::HeadlessWindow window(linguisticTaggers(std::make_shared<const linguistics::Engine>(models)));
    ViewController& controller = window.controller();
    print("text", static_cast<double>(text.size()) / 1e6, "MB");
    window.setText(text);

    print("lexical pass", bestSeconds(runs, [&] { controller.parseText(); }), "s");
    print("list of words", bestSeconds(runs, [&] { controller.listConcButton(); }), "s");
    print("peak memory so far", peakMegabytes(), "MB");
    if (argc > 3 && std::string_view(argv[3]) == "lexical") return 0;
    const double before = residentMegabytes();
    print("multi-scheme pass", bestSeconds(runs, [&] { controller.multiParse(); }), "s");
    print("resident memory grown", residentMegabytes() - before, "MB");
    print("tokens", static_cast<double>(controller.taggedText.size()) / 1e6, "million");
    for (const int view : {0, 1, 2, 4})
        print(("view " + std::to_string(view)).c_str(),
              bestSeconds(runs, [&] { controller.showSchemeView(view); }), "s");
    print("list of lemmas", bestSeconds(runs, [&] { controller.listConcButton(); }), "s");
    print("peak memory", peakMegabytes(), "MB");

    cli::HeadlessWindow words(linguisticTaggers(std::make_shared<const linguistics::Engine>(models)));
    fill(words.controller().nouns, 1'000'000);
    print("list of a million words", bestSeconds(runs, [&] { words.controller().listConcButton(); }), "s");
    return 0;
}
