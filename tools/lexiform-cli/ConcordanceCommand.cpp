#include "tools/lexiform-cli/ConcordanceCommand.h"

#include "base/checkedSum.h"
#include "tools/lexiform-cli/HeadlessWindow.h"
#include "tools/lexiform-cli/InputText.h"
#include "tools/lexiform-cli/Sink.h"

#include <array>
#include <utility>

namespace lexiform::cli {

namespace {

constexpr std::array dictionaries = {&ViewController::verbs,        &ViewController::nouns,
                                     &ViewController::adjectives,   &ViewController::adverbs,
                                     &ViewController::pronouns,     &ViewController::determiners,
                                     &ViewController::particles,    &ViewController::prepositions,
                                     &ViewController::conjunctions, &ViewController::names};

void addCounts(const ViewController& from, ViewController& to) {
    for (const auto dictionary : dictionaries)
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

    void count(std::string text) {
        file_.setText(std::move(text));
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
    for (const std::string& file : inputNames(request.files)) {
        auto text = readText(file);
        if (!text.succeeded()) {
            report(errors, text.fault().message);
            status = 1;
            continue;
        }
        words.count(std::move(text).value());
        if (request.each) sink.pending += file + "\n" + words.take() + "\n";
    }
    if (!request.each) sink.pending += words.take();
    return sink.finish(errors) ? status : 1;
}

} // namespace lexiform::cli
