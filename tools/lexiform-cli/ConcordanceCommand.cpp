#include "tools/lexiform-cli/ConcordanceCommand.h"

#include "base/checkedSum.h"
#include "tools/lexiform-cli/HeadlessWindow.h"
#include "tools/lexiform-cli/InputText.h"
#include "tools/lexiform-cli/Sink.h"

#include <string_view>

namespace lexiform::cli {

namespace {

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
    Report(const TaggerFactory& makeTagger, bool lemmas)
        : file_(makeTagger), all_(makeTagger), lemmas_(lemmas) {}

    void count(std::string_view text) {
        file_.setText(text);
        if (lemmas_) {
            file_.controller().multiParse();
            file_.controller().recountTaggedText();
        } else {
            file_.controller().parseText();
        }
        addCounts(file_.controller(), all_.controller());
    }

    /// The report on what was counted since the last one.
    [[nodiscard]] std::string take() {
        all_.controller().listConcButton();
        all_.controller().clearWordDicts();
        all_.controller().totWordC = 0;
        return all_.concordance();
    }

private:
    HeadlessWindow file_;
    HeadlessWindow all_;
    bool lemmas_;
};

} // namespace

int concordance(const ConcordanceRequest& request, const TaggerFactory& makeTagger, std::FILE* out,
                std::FILE* errors) {
    Report words(makeTagger, request.lemmas);
    Sink sink(out);
    int status = 0;
    bool counted = false;
    for (const std::string& file : inputNames(request.files)) {
        const auto text = readText(file);
        if (!text.succeeded()) {
            report(errors, text.fault().message);
            status = 1;
            continue;
        }
        words.count(text.value());
        counted = true;
        if (request.each) sink.pending += file + "\n" + words.take() + "\n";
    }
    if (counted && !request.each) sink.pending += words.take();
    return sink.finish(errors) ? status : 1;
}

} // namespace lexiform::cli
