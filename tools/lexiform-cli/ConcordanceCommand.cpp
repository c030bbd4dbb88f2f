#include "tools/lexiform-cli/ConcordanceCommand.h"

#include "base/checkedSum.h"
#include "platform/linguistics/LinguisticTagger.h"
#include "tools/lexiform-cli/BlockReader.h"
#include "tools/lexiform-cli/HeadlessWindow.h"
#include "tools/lexiform-cli/Sink.h"

#include <utility>

namespace lexiform::cli {

namespace {

using linguistics::Engine;

void addCounts(const ViewController& from, ViewController& to) {
    for (const auto dictionary : ViewController::wordDictionaries())
        for (const auto& [word, count] : from.*dictionary) {
            std::int64_t& total = (to.*dictionary)[word];
            total = checkedSum(total, count);
        }
}

/// Counts the words of files, and lists them.
class Report {
public:
    Report(std::shared_ptr<const Engine> engine, bool lemmas)
        : engine_(std::move(engine)), all_(linguisticTaggers(engine_)), lemmas_(lemmas) {}

    /// Counts the words of a text; of one that cannot be read to its end none count.
    Outcome<Done, InputFault> count(BlockReader reader) {
        HeadlessWindow file(linguisticTaggers(engine_));
        auto block = reader.next();
        if (block.succeeded() && block.value()) {
            const TaggerFactory taggers = linguisticTaggers(engine_, engine_->contextOf(block.value()->text));
            for (; block.succeeded() && block.value(); block = reader.next())
                countBlock(block.value()->text, taggers, file.controller());
        }
        if (!block.succeeded()) return block.fault();
        addCounts(file.controller(), all_.controller());
        return Done{};
    }

    /// The report on what was counted since the last one.
    [[nodiscard]] std::string take() {
        all_.controller().listConcButton();
        all_.controller().clearWordDicts();
        all_.controller().totWordC = 0;
        return all_.concordance();
    }

private:
    void countBlock(const std::string& text, const TaggerFactory& taggers, ViewController& counts) const {
        HeadlessWindow block(taggers);
        block.setText(text);
        if (lemmas_) {
            block.controller().multiParse();
            block.controller().recountTaggedText();
        } else {
            block.controller().parseText();
        }
        addCounts(block.controller(), counts);
    }

    std::shared_ptr<const Engine> engine_;
    HeadlessWindow all_;
    bool lemmas_;
};

Outcome<Done, InputFault> countFile(const std::string& name, const std::string& type, Report& words) {
    auto reader = BlockReader::open(name, type);
    if (!reader.succeeded()) return reader.fault();
    return words.count(std::move(reader).value());
}

} // namespace

int concordance(const ConcordanceRequest& request, const std::shared_ptr<const Engine>& engine,
                std::FILE* out, std::FILE* errors) {
    Report words(engine, request.lemmas);
    Sink sink(out);
    int status = 0;
    bool counted = false;
    for (const std::string& file : inputNames(request.files)) {
        const auto outcome = countFile(file, request.type, words);
        if (!outcome.succeeded()) {
            report(errors, outcome.fault().message);
            status = 1;
            continue;
        }
        counted = true;
        if (request.each) sink.pending += file + "\n" + words.take() + "\n";
    }
    if (counted && !request.each) sink.pending += words.take();
    return sink.finish(errors) ? status : 1;
}

} // namespace lexiform::cli
