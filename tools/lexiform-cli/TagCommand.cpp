#include "tools/lexiform-cli/TagCommand.h"

#include "base/present.h"
#include "tools/lexiform-cli/AnsiWriter.h"
#include "tools/lexiform-cli/InputText.h"
#include "tools/lexiform-cli/TokenWriter.h"

#include <cerrno>
#include <cstring>

namespace lexiform::cli {

namespace {

/// Collects output and passes it on in large pieces.
class Sink {
public:
    explicit Sink(std::FILE* file) : file_(file) {}

    std::string pending;

    void flushIfLarge() {
        if (pending.size() >= (1U << 16U)) flush();
    }
    void flush() {
        if (std::fwrite(pending.data(), 1, pending.size(), file_) != pending.size()) failed_ = true;
        pending.clear();
    }
    /// Whether everything has reached the file.
    [[nodiscard]] bool finish() {
        flush();
        return std::fflush(file_) == 0 && !failed_;
    }
    [[nodiscard]] bool failed() const { return failed_; }

private:
    std::FILE* file_;
    bool failed_ = false;
};

void report(std::FILE* errors, const std::string& message) {
    std::fprintf(errors, "lexiform-cli: %s\n", message.c_str());
}

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
    const std::vector<std::string> files =
        request.files.empty() ? std::vector<std::string>{standardInput} : request.files;
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
    if (!sink.finish()) {
        report(errors, std::string("cannot write the result: ") + std::strerror(errno));
        status = 1;
    }
    return status;
}

} // namespace lexiform::cli
