#include "tools/lexiform-cli/TextCommand.h"

#include "tools/lexiform-cli/BlockReader.h"
#include "tools/lexiform-cli/Sink.h"

#include <utility>

namespace lexiform::cli {

namespace {

Outcome<Done, InputFault> writeFile(const std::string& name, const std::string& type, Sink& sink) {
    auto opened = BlockReader::open(name, type);
    if (!opened.succeeded()) return opened.fault();
    BlockReader reader = std::move(opened).value();
    for (auto block = reader.next();; block = reader.next()) {
        if (!block.succeeded()) return block.fault();
        if (!block.value() || sink.failed()) return Done{};
        sink.pending += block.value()->text;
        sink.flushIfLarge();
    }
}

} // namespace

int text(const TextRequest& request, std::FILE* out, std::FILE* errors) {
    Sink sink(out);
    int status = 0;
    for (const std::string& file : inputNames(request.files)) {
        const auto outcome = writeFile(file, request.type, sink);
        if (outcome.succeeded()) continue;
        report(errors, outcome.fault().message);
        status = 1;
    }
    return sink.finish(errors) ? status : 1;
}

} // namespace lexiform::cli
