#include "tools/train/network/Teachers.h"

#include "tools/train/network/logScores.h"

#include <algorithm>
#include <cmath>
#include <future>
#include <memory>
#include <ostream>
#include <span>
#include <sstream>
#include <utility>

namespace lexiform::train {

using namespace linguistics;

namespace {

// How large the numbers of a row are at first, as the root of their mean square.
constexpr float firstSize = 0.25F;
// Teachers label this many examples at a time.
constexpr std::size_t labelledAtOnce = 32;

// Evenly spread sentences of a text, as many as hold `words` words.
void addSpread(const OpenText& text, std::size_t words, std::vector<Example>& examples) {
    constexpr std::size_t longest = 80;
    std::size_t taken = 0, passed = 0;
    for (std::size_t i = 0; i < text.sentenceCount(); ++i) {
        const auto sentence = text.sentence(i);
        passed += sentence.size();
        if (taken * text.wordCount() > passed * words || sentence.size() > longest) continue;
        taken += sentence.size();
        examples.emplace_back().forms.assign(sentence.begin(), sentence.end());
    }
}

std::vector<Example> openExamples(const TrainingData& data, std::size_t words) {
    std::vector<Example> examples;
    addSpread(data.unannotated, words, examples);
    const std::size_t taken = std::min(words, data.unannotated.wordCount());
    for (const OpenText& text : data.open)
        addSpread(text, (words - taken) / data.open.size(), examples);
    return examples;
}

void addTo(std::vector<float>& sums, const std::vector<float>& values, float share) {
    sums.resize(values.size(), 0.0F);
    for (std::size_t i = 0; i < values.size(); ++i)
        sums[i] += share * values[i];
}

void label(std::vector<Example>& examples, Network& teacher, std::span<const SeenForm> forms, float share) {
    const std::vector<const Example*> pointers = pointersTo(examples);
    for (std::size_t start = 0; start < examples.size(); start += labelledAtOnce) {
        const std::size_t count = std::min(labelledAtOnce, examples.size() - start);
        const auto likely = teacher.likelihoods(std::span(pointers).subspan(start, count), forms);
        for (std::size_t i = 0; i < count; ++i) {
            Example& example = examples[start + i];
            if (example.pos.empty()) addTo(example.likelyPos, likely[i].pos, share);
            if (example.names.empty()) addTo(example.likelyNames, likely[i].names, share);
        }
    }
}

} // namespace

std::vector<const Example*> pointersTo(const std::vector<Example>& examples) {
    std::vector<const Example*> pointers;
    pointers.reserve(examples.size());
    for (const Example& example : examples)
        pointers.push_back(&example);
    return pointers;
}

RowLayout layoutOf(const Vocabulary& vocabulary, double scale) {
    const auto scaled = [&](double count) { return static_cast<std::uint32_t>(count * scale); };
    return RowLayout({static_cast<std::uint32_t>(vocabulary.rowCount()), scaled(512), 256, listRowCount,
                      scaled(64), scaled(512), scaled(2048), scaled(3072), scaled(3072), scaled(64),
                      scaled(512), scaled(2048)});
}

void startRows(Network& network, const Vocabulary& vocabulary, const Matrix& vectors) {
    double squares = 0;
    for (const float value : vectors.values())
        squares += static_cast<double>(value) * static_cast<double>(value);
    const auto size = static_cast<float>(std::sqrt(squares / static_cast<double>(vectors.values().size())));
    Matrix& rows = network.rows().values();
    const std::size_t shared = std::min(rows.columns(), vectors.columns());
    const std::size_t words = std::min(vocabulary.rowCount(), vectors.rows());
    for (std::size_t row = firstWordRow; row < words; ++row)
        for (std::size_t i = 0; i < shared; ++i)
            rows.row(row)[i] = vectors.row(row)[i] * firstSize / size;
}

Silver silverOf(const TrainingData& data, const Lexicon& lexicon, const Matrix& vectors,
                const NetworkOptions& options, std::ostream& log) {
    Silver silver{data.annotated, openExamples(data, options.teachers > 0 ? options.silverWords : 0)};
    const FormCounts counts = data.counts();
    const Vocabulary vocabulary(counts, lexicon, options.teacherWords);
    NetworkShape shape = options.teacher;
    shape.layout = layoutOf(vocabulary, options.teacherAffixes);
    shape.fineLabels = data.tables.fine.size();
    shape.featureLabels = data.tables.features.size();
    const std::vector<SeenForm> forms = vocabulary.seen(data.tables.forms, counts, shape.layout);
    const auto trained = [&](std::size_t number) {
        TrainingPlan plan = options.teacherPlan;
        plan.seed += static_cast<std::uint32_t>(number);
        auto teacher = std::make_unique<Network>(shape, plan.seed);
        startRows(*teacher, vocabulary, vectors);
        std::ostringstream lines;
        train(*teacher, {pointersTo(data.annotated), {}}, forms, plan, [&](int epoch, double loss) {
            lines << "teacher " << number + 1 << ", epoch " << epoch << ": loss " << loss << '\n';
        });
        logScores(data, *teacher, forms, lines);
        return std::pair(std::move(teacher), lines.str());
    };
    std::vector<std::future<std::pair<std::unique_ptr<Network>, std::string>>> teachers;
    for (std::size_t number = 0; number < options.teachers; ++number)
        teachers.push_back(std::async(std::launch::async, trained, number));
    for (auto& one : teachers) {
        const auto [teacher, lines] = one.get();
        log << lines << std::flush;
        label(silver.annotated, *teacher, forms, 1 / static_cast<float>(options.teachers));
        label(silver.open, *teacher, forms, 1 / static_cast<float>(options.teachers));
    }
    return silver;
}

} // namespace lexiform::train
