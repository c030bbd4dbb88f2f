#include "tools/lexiform-cli/TokenWriter.h"

#include "tools/lexiform-cli/AnsiWriter.h"
#include "tools/lexiform-cli/ConlluWriter.h"
#include "tools/lexiform-cli/TsvWriter.h"

namespace lexiform::cli {

std::unique_ptr<TokenWriter> writerFor(std::string_view format) {
    if (format == "conllu") return std::make_unique<ConlluWriter>();
    if (format == "tsv") return std::make_unique<TsvWriter>();
    if (format == "ansi") return std::make_unique<AnsiWriter>();
    return nullptr;
}

} // namespace lexiform::cli
