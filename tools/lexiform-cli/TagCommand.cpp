#include "tools/lexiform-cli/TagCommand.h"

#include "base/present.h"
#include "tools/lexiform-cli/AnsiWriter.h"
#include "tools/lexiform-cli/InputText.h"
#include "tools/lexiform-cli/Sink.h"
#include "tools/lexiform-cli/TokenWriter.h"

namespace lexiform::cli {

namespace {

void writeText(const std::string& text, const std::string& shownName, const linguistics::Engine& engine,
               TokenWriter& writer, Sink& sink) {
    writer.startText(shownName, sink.pending);
    engine.analyse(text, [&](const linguistics::Paragraph& paragraph) {
        writer.paragraph(paragraph, text, sink.pending);
        sink.flushIfLarge();
        return !sink.failed();
    });
    writer.endText(sink.pending);
}

} // namespace

int tag(const TagRequest& request, const linguistics::Engine& engine, std::FILE* out, std::FILE* errors) {
    const std::unique_ptr<TokenWriter> writer = writerFor(request.format);
    const std::vector<std::string> files = inputNames(request.files);
    Sink sink(out);
    int status = 0;

    present(writer).start(sink.pending);
    for (const std::string& file : files) {
        const auto text = readText(file);
        if (text.succeeded()) {
            writeText(text.value(), files.size() > 1 ? file : "", engine, *writer, sink);
        } else {
            report(errors, text.fault().message);
            status = 1;
        }
    }
    if (request.withKey) sink.pending += "\n" + ansiKey();
    return sink.finish(errors) ? status : 1;
}

} // namespace lexiform::cli
