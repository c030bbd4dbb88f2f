// Runs a fuzz target without a fuzzing engine: first every file of the folders that are its third and later
// arguments, then, for as many seconds as the first argument says, seeded random texts and mutations of these
// and of the files. The second argument, if any, is the seed.
//
// A target that has a language of its own defines `fuzzPieces`, of which its texts are made.

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

__attribute__((weak)) const std::vector<std::string>& fuzzPieces();

namespace {

using Generator = std::mt19937_64;

std::size_t below(Generator& random, std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
}

// Pieces at which texts are cut: every connector, mark and line end has a part in some rule.
const std::vector<std::string>& pieces() {
    if (fuzzPieces != nullptr) return fuzzPieces();
    static const std::vector<std::string> all = {"the",
                                                 "Mr",
                                                 "U.S",
                                                 "don't",
                                                 "can",
                                                 "not",
                                                 "e.g",
                                                 "12",
                                                 "1,000",
                                                 "a",
                                                 "I",
                                                 "http://",
                                                 "www.",
                                                 "x@y.org",
                                                 ".",
                                                 ",",
                                                 "'",
                                                 "\"",
                                                 "-",
                                                 "--",
                                                 "...",
                                                 "!",
                                                 "?",
                                                 ":",
                                                 ";",
                                                 "(",
                                                 ")",
                                                 "/",
                                                 "&",
                                                 "@",
                                                 "#",
                                                 "$",
                                                 "%",
                                                 "*",
                                                 "_",
                                                 " ",
                                                 " ",
                                                 " ",
                                                 "\t",
                                                 "\n",
                                                 "\r\n",
                                                 "\r",
                                                 "\v",
                                                 "\f",
                                                 "\n\n",
                                                 "\xC2\x85",
                                                 "\xE2\x80\xA8",
                                                 "\xE2\x80\xA9",
                                                 "\xC2\xA0",
                                                 "\xE2\x80\x99",
                                                 "\xE2\x80\x9C",
                                                 "\xE2\x80\x9D",
                                                 "\xE2\x80\xA6",
                                                 "\xE2\x80\x94",
                                                 "\xCC\x81",
                                                 "\xE2\x80\x8D",
                                                 "\xEF\xB8\x8F",
                                                 "\xE2\x83\xA3",
                                                 "\xF0\x9F\x91\xA9",
                                                 "\xF0\x9F\x8F\xBD",
                                                 "\xF0\x9F\x87\xAB",
                                                 "\xE6\x97\xA5",
                                                 "\xE6\x9C\xAC",
                                                 "\xE3\x81\x84",
                                                 "\xE3\x83\xBC",
                                                 "\xE0\xB8\x81",
                                                 "\xE0\xB8\xB3",
                                                 "\xD7\xA9",
                                                 "\xD9\x84",
                                                 "\xD0\x96",
                                                 "\xCE\xA9",
                                                 "\xC3\xA9",
                                                 "\xED\x95\x9C",
                                                 "\xEF\xBB\xBF",
                                                 "\xE2\x80\x8B",
                                                 "\xC2\xAD",
                                                 "\xFF",
                                                 "\xC0\xAF",
                                                 "\xED\xA0\x80",
                                                 "\xF4\x90\x80\x80",
                                                 "\xE2\x80",
                                                 std::string(1, '\0'),
                                                 "\xEF\xBF\xBF"};
    return all;
}

std::string randomText(Generator& random) {
    std::string text;
    for (std::size_t count = below(random, 200); count > 0; --count)
        text += pieces()[below(random, pieces().size())];
    return text;
}

std::string mutated(std::string text, Generator& random) {
    for (std::size_t count = 1 + below(random, 8); count > 0 && !text.empty(); --count) {
        const std::size_t at = below(random, text.size());
        switch (below(random, 4)) {
        case 0:
            text[at] = static_cast<char>(below(random, 256));
            break;
        case 1:
            text.erase(at, 1 + below(random, 4));
            break;
        case 2:
            text.insert(at, pieces()[below(random, pieces().size())]);
            break;
        default: // long runs of one thing find what is not linear
            text.insert(at, std::string(below(random, 300), text[at]));
        }
    }
    return text;
}

void run(const std::string& text) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
}

// In the order of their names, so that a seed gives the same run everywhere.
std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file()) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::fprintf(stderr, "cannot read %s\n", path.c_str());
        std::exit(EXIT_FAILURE);
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> contentsOf(int count, char** folders) {
    std::vector<std::string> contents;
    for (int i = 0; i < count; ++i)
        for (const auto& path : filesIn(folders[i]))
            contents.push_back(contentOf(path));
    return contents;
}

} // namespace

int main(int count, char** arguments) {
    const int seconds = count > 1 ? std::atoi(arguments[1]) : 5;
    Generator random(count > 2 ? std::strtoull(arguments[2], nullptr, 10) : 1);
    const std::vector<std::string> seeds =
        count > 3 ? contentsOf(count - 3, arguments + 3) : std::vector<std::string>();
    for (const std::string& seed : seeds)
        run(seed);
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    std::size_t texts = seeds.size();
    while (std::chrono::steady_clock::now() < end) {
        const std::string text = randomText(random);
        run(text);
        run(mutated(text, random));
        texts += 2;
        if (seeds.empty()) continue;
        run(mutated(seeds[below(random, seeds.size())], random));
        ++texts;
    }
    std::printf("%zu texts held the contract, %zu of them files\n", texts, seeds.size());
    return 0;
}
