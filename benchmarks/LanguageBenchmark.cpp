// Tells the language of every line of a text several times and prints the best speed, by processor time.
// Usage: LanguageBenchmark TEXT IDENTIFIER-FILE [RUNS]

#include "linguistics/language/LanguageIdentifier.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>

namespace {

using namespace lexiform::linguistics;

using Counts = std::map<std::string_view, std::size_t>;

Counts tellLines(const LanguageIdentifier& identifier, std::string_view text) {
    Counts counts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1);
        ++counts[identifier.guess(text.substr(0, end)).language];
        text.remove_prefix(end + 1);
    }
    return counts;
}

void print(const Counts& counts) {
    for (const auto& [language, count] : counts)
        std::printf("%.*s:%zu ", static_cast<int>(language.size()), language.data(), count);
    std::printf("\n");
}

} // namespace

int main(int count, char** arguments) {
    if (count < 3) return std::puts("usage: LanguageBenchmark TEXT IDENTIFIER-FILE [RUNS]"), 2;
    std::ifstream input(arguments[1], std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(input), {}};
    const auto identifier = LanguageIdentifier::load(arguments[2]);
    if (!identifier.succeeded()) return std::puts(identifier.fault().reason.c_str()), 1;
    const int runs = count > 3 ? std::max(1, std::atoi(arguments[3])) : 5;
    double best = 1e9;
    Counts counts;
    for (int run = 0; run < runs; ++run) {
        const std::clock_t start = std::clock();
        counts = tellLines(identifier.value(), text);
        best = std::min(best, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    print(counts);
    std::printf("%zu bytes, %.3f s of processor time, %.1f MB/s\n", text.size(), best,
                static_cast<double>(text.size()) / best / 1e6);
    return 0;
}
