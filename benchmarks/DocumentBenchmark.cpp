// What it takes to read and write documents: `DocumentBenchmark TEXT [RUNS]` reads a text in UTF-8, gives
// every word a colour in turn, and prints the best time of several runs for each format.

#include "document/readAttributedText.h"
#include "document/rtf/RtfWriter.h"

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>

namespace {

using namespace lexiform;

AttributedText coloured(std::string_view text) {
    AttributedText result;
    int word = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find_first_of(" \n.,;", start), text.size());
        result.append(text.substr(start, end - start), static_cast<Colour>(1 + word++ % 8));
        const std::size_t next = std::min(text.find_first_not_of(" \n.,;", end), text.size());
        result.append(text.substr(end, next - end), Colour::text);
        start = next;
    }
    return result;
}

void measure(const char* what, std::size_t bytes, int runs, const std::function<bool()>& pass) {
    double best = 1e9;
    bool done = true;
    for (int i = 0; i < runs; ++i) {
        const auto began = std::chrono::steady_clock::now();
        done = pass() && done;
        best =
            std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count());
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%-28s %8.2f MB %8.3f s   peak %5.0f MB%s\n", what, static_cast<double>(bytes) / 1e6, best,
                static_cast<double>(usage.ru_maxrss) * 1024 / 1e6, done ? "" : "   FAILED");
}

void measureReading(const char* what, const std::string& bytes, int runs) {
    measure(what, bytes.size(), runs, [&] { return document::readAttributedText(bytes).succeeded(); });
}

} // namespace

int main(int count, char** arguments) {
    if (count < 2) return std::puts("usage: DocumentBenchmark TEXT [RUNS]"), 2;
    std::ifstream input(arguments[1], std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(input), {}};
    const int runs = count > 2 ? std::max(1, std::atoi(arguments[2])) : 3;
    measureReading("reading plain text", bytes, runs);
    measureReading("reading it as a page", "<html><body><p>" + bytes, runs);

    const AttributedText text = coloured(bytes);
    std::string rtf;
    measure("writing RTF", bytes.size(), runs, [&] {
        rtf = document::writeRtf(text, {0, document::utf16Length(text.string())}).value_or("");
        return !rtf.empty();
    });
    measureReading("reading that RTF", rtf, runs);
    return 0;
}
