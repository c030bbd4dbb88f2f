#include "tools/train/network/trainNetwork.h"

#include "tools/train/network/NetworkWriter.h"
#include "tools/train/network/SkipGram.h"
#include "tools/train/network/Teachers.h"
#include "tools/train/network/TrainingData.h"
#include "tools/train/network/logScores.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <iomanip>
#include <ostream>

namespace lexiform::train {

using namespace linguistics;

namespace {

// Text that was chosen for annotation is like what the tagger will see more than novels are.
constexpr int repeatsOfAnnotated = 3;

/// Tells the time since it was made.
class Watch {
public:
    [[nodiscard]] int seconds() const {
        return static_cast<int>(
            std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start_)
                .count());
    }

private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

// The running text as rows of words, ends of sentences in between.
class RowText {
public:
    explicit RowText(const std::vector<SeenForm>& forms) : forms_(forms) {}

    void add(std::span<const std::uint32_t> sentence) {
        for (const std::uint32_t form : sentence) {
            const std::uint32_t row = *forms_[form].rows.begin();
            rows_.push_back(row == unknownRow ? unknownWord : row);
        }
        rows_.push_back(0);
    }
    void add(const OpenText& text) {
        for (std::size_t i = 0; i < text.sentenceCount(); ++i)
            add(text.sentence(i));
    }
    [[nodiscard]] std::span<const std::uint32_t> rows() const { return rows_; }

private:
    // The row of boundaries is free here, where 0 parts sentences.
    static constexpr std::uint32_t unknownWord = boundaryRow;

    const std::vector<SeenForm>& forms_;
    std::vector<std::uint32_t> rows_;
};

Matrix vectorsOf(const TrainingData& data, const Vocabulary& vocabulary, const std::vector<SeenForm>& forms,
                 const NetworkOptions& options) {
    RowText text(forms);
    for (int i = 0; i < repeatsOfAnnotated; ++i) {
        for (const Example& example : data.annotated)
            text.add(example.forms);
        text.add(data.unannotated);
        if (i > 0) continue;
        for (const OpenText& open : data.open)
            text.add(open);
    }
    return wordVectors(text.rows(), vocabulary.rowCount(), {.passes = options.vectorPasses});
}

} // namespace

NetworkOptions NetworkOptions::of(std::string_view language) {
    constexpr std::array first = {"en", "de", "fr", "es", "it", "pt", "ru", "tr"};
    NetworkOptions options =
        std::find(first.begin(), first.end(), language) != first.end() ? firstRing() : secondRing();
    // The language of most texts is worth more time.
    if (language == "en") options.teachers = 3;
    // Much of its text has the tags of a chain, which more turns only repeat; its lexicon is large.
    if (language == "tr") {
        options.plan.epochs = 8;
        options.words = 20000;
    }
    return options;
}

NetworkOptions NetworkOptions::firstRing() {
    NetworkOptions options;
    options.plan = {.epochs = 18,
                    .rate = 0.003F,
                    .turns = 3,
                    .noise = {.words = 0.25F, .inputs = 0.2F, .outputs = 0.35F}};
    options.teacher.width = 128;
    options.teacher.units = 128;
    options.teacher.layers = 2;
    options.teacherPlan = {
        .epochs = 8, .rate = 0.002F, .noise = {.words = 0.5F, .inputs = 0.3F, .outputs = 0.45F}, .seed = 100};
    return options;
}

NetworkOptions NetworkOptions::secondRing() {
    NetworkOptions options = firstRing();
    options.words = 12000;
    options.affixes = 0.7;
    return options;
}

std::optional<std::string> trainNetwork(const LanguageSources& sources, const Lexicon& lexicon,
                                        const NetworkOptions& options, ModelFileWriter& file,
                                        std::ostream& log) {
    const Watch watch;
    const TrainingData data(sources, options.vectorBytes);
    if (data.fault) return data.fault;
    const FormCounts counts = data.counts();
    log << "read after " << watch.seconds() << " s: " << data.annotated.size() << " annotated sentences, "
        << data.tables.forms.size() << " forms" << std::endl;

    const Vocabulary large(counts, lexicon, std::max(options.teacherWords, options.words));
    const Matrix vectors =
        vectorsOf(data, large, large.seen(data.tables.forms, counts, layoutOf(large, 1)), options);
    log << "word vectors after " << watch.seconds() << " s" << std::endl;

    const Silver silver = silverOf(data, lexicon, vectors, options, log);
    log << "silver text after " << watch.seconds() << " s: " << silver.open.size() << " sentences"
        << std::endl;

    const Vocabulary vocabulary(counts, lexicon, options.words);
    NetworkShape shape;
    shape.layout = layoutOf(vocabulary, options.affixes);
    shape.fineLabels = data.tables.fine.size();
    shape.featureLabels = data.tables.features.size();
    const std::vector<SeenForm> forms = vocabulary.seen(data.tables.forms, counts, shape.layout);
    Network network(shape, options.plan.seed);
    startRows(network, vocabulary, vectors);
    const Lessons lessons{pointersTo(silver.annotated), pointersTo(silver.open)};
    train(network, lessons, forms, options.plan, [&](int epoch, double loss) {
        log << "epoch " << epoch << " after " << watch.seconds() << " s: loss " << std::setprecision(4)
            << loss << std::endl;
        if (epoch % 2 == 0 || epoch == options.plan.epochs) logScores(data, network, forms, log);
    });
    appendNetwork(network, vocabulary, file, log);
    logScores(data, file, log);
    return std::nullopt;
}

} // namespace lexiform::train
