// Holds the command line to its contract on any arguments: it is understood, or answered with words and one
// of the program's exit statuses.

#include "base/fatalError.h"
#include "tools/lexiform-cli/CommandLine.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace lexiform;

void require(bool condition, std::string_view what) {
    if (!condition) fatalError(what);
}

// No argument has a zero byte; a tab ends one here.
std::vector<std::string> argumentsIn(std::string_view bytes) {
    std::vector<std::string> arguments = {"lexiform-cli", ""};
    for (const char byte : bytes) {
        if (byte == '\t')
            arguments.emplace_back();
        else if (byte != '\0')
            arguments.back() += byte;
    }
    return arguments;
}

} // namespace

const std::vector<std::string>& fuzzPieces() {
    static const std::vector<std::string> all = {"tag",
                                                 "\ttag\t",
                                                 "concordance\t",
                                                 "language\t",
                                                 "models\t",
                                                 "text\t",
                                                 "\t--format\t",
                                                 "conllu",
                                                 "ansi\t",
                                                 "--format=json",
                                                 "--key\t",
                                                 "--jobs\t",
                                                 "--jobs=",
                                                 "0",
                                                 "-1",
                                                 "4\t",
                                                 "4294967296",
                                                 "1e9",
                                                 "--language",
                                                 "pt-BR\t",
                                                 "--by\tsentence",
                                                 "--each",
                                                 "-",
                                                 "--",
                                                 "\t--\t",
                                                 "-h",
                                                 "--help\t",
                                                 "--version\t",
                                                 "--lemmas",
                                                 "=",
                                                 "\"",
                                                 "'",
                                                 "\\",
                                                 "[section]\t",
                                                 "%",
                                                 "a.txt\t",
                                                 "\t",
                                                 "\t",
                                                 " ",
                                                 "\n",
                                                 "\xC3\xA9",
                                                 "\xFF",
                                                 "--no-such\t",
                                                 "/dev/null\t"};
    return all;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string> arguments = argumentsIn({reinterpret_cast<const char*>(data), size});
    std::vector<const char*> pointers;
    for (const std::string& argument : arguments)
        pointers.push_back(argument.c_str());
    const auto request = cli::parseCommandLine(static_cast<int>(pointers.size()), pointers.data(), "1.2.3");
    if (request.succeeded()) return 0;
    require(!request.fault().message.empty(), "the program would end without a word");
    require(request.fault().status == 0 || request.fault().status == cli::misused, "an unknown exit status");
    return 0;
}
