#include "tools/lexiform-cli/AnsiWriter.h"
#include "tools/lexiform-cli/ConlluWriter.h"
#include "tools/lexiform-cli/HtmlWriter.h"
#include "tools/lexiform-cli/JsonWriter.h"
#include "tools/lexiform-cli/RtfWriter.h"
#include "tools/lexiform-cli/TokenWriter.h"
#include "tools/lexiform-cli/TsvWriter.h"

namespace lexiform::cli {

std::unique_ptr<TokenFormat> formatNamed(std::string_view name) {
    if (name == "conllu") return std::make_unique<ConlluFormat>();
    if (name == "tsv") return std::make_unique<TsvFormat>();
    if (name == "json") return std::make_unique<JsonFormat>();
    if (name == "ansi") return std::make_unique<AnsiFormat>();
    if (name == "rtf") return std::make_unique<RtfFormat>();
    if (name == "html") return std::make_unique<HtmlFormat>();
    return nullptr;
}

} // namespace lexiform::cli
