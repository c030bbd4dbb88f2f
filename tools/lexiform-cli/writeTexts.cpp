#include "tools/lexiform-cli/writeTexts.h"

#include "tools/lexiform-cli/BlockReader.h"
#include "tools/lexiform-cli/OrderedWorkers.h"

#include <memory>
#include <utility>
#include <vector>

namespace lexiform::cli {

namespace {

using linguistics::Analyser;
using linguistics::Engine;
using linguistics::TextContext;

Piece written(const TextBlock& block, const TextContext& context, const TokenFormat& format,
              Analyser& analyser) {
    Piece piece;
    const std::unique_ptr<TokenWriter> writer = format.writer();
    analyser.analyse(block.text, context, format.depth(), [&](const linguistics::Paragraph& paragraph) {
        writer->paragraph(paragraph, block, piece);
        return true;
    });
    writer->endBlock(piece);
    return piece;
}

std::vector<Analyser> analysersOf(const Engine& engine, std::size_t count) {
    std::vector<Analyser> analysers;
    for (std::size_t i = 0; i < count; ++i)
        analysers.push_back(engine.analyser());
    return analysers;
}

/// Tags texts one after the other.
class Tagging {
public:
    Tagging(const Engine& engine, const TokenFormat& format, std::size_t jobs, Sink& sink)
        : engine_(engine), format_(format), sink_(sink), workers_(analysersOf(engine, jobs)) {}

    /// Writes the text of `reader`; the fault is what ended it early. Of a text that cannot be taken from
    /// its start nothing is written.
    Outcome<Done, InputFault> write(BlockReader reader, std::string_view shownName) {
        auto block = reader.next();
        if (!block.succeeded()) return block.fault();
        sink_.pending += format_.startText(shownName, isFirst_);
        isFirst_ = false;
        if (block.value()) context_ = engine_.contextOf(block.value()->text);
        while (block.succeeded() && block.value() && !sink_.failed()) {
            startWork(*std::move(block).value());
            block = reader.next();
        }
        while (!workers_.isEmpty())
            takePiece();
        sink_.pending += format_.endText();
        if (!block.succeeded()) return block.fault();
        return Done{};
    }

private:
    void startWork(TextBlock block) {
        if (workers_.isFull()) takePiece();
        // Work is copied about, so it shares its block.
        workers_.start(
            [block = std::make_shared<const TextBlock>(std::move(block)), context = context_,
             &format = format_](Analyser& analyser) { return written(*block, context, format, analyser); });
    }

    void takePiece() {
        const Piece piece = workers_.take();
        piece.appendTo(sink_.pending, sentences_);
        sentences_ += piece.sentences();
        sink_.flushIfLarge();
    }

    const Engine& engine_;
    const TokenFormat& format_;
    Sink& sink_;
    OrderedWorkers<Analyser, Piece> workers_;
    TextContext context_;
    std::size_t sentences_ = 0;
    bool isFirst_ = true;
};

} // namespace

int writeTexts(const Inputs& inputs, const TokenFormat& format, std::size_t jobs, const Engine& engine,
               Sink& sink, std::FILE* errors) {
    Tagging tagging(engine, format, jobs, sink);
    int status = 0;
    sink.pending += format.start();
    for (const std::string& file : inputs.files) {
        auto reader = BlockReader::open(file, inputs.type);
        const auto outcome =
            reader.succeeded() ? tagging.write(std::move(reader).value(), inputs.files.size() > 1 ? file : "")
                               : Outcome<Done, InputFault>(reader.fault());
        if (outcome.succeeded()) continue;
        report(errors, outcome.fault().message);
        status = 1;
    }
    sink.pending += format.end();
    return status;
}

} // namespace lexiform::cli
