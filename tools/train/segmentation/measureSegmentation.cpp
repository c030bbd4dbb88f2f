#include "tools/train/segmentation/measureSegmentation.h"

#include "linguistics/segmentation/SegmentationModel.h"
#include "tools/train/segmentation/SegmentationScore.h"

#include <iomanip>

namespace lexiform::train {

using namespace linguistics;

namespace {

void print(const char* what, const SegmentationScore& score, std::ostream& out) {
    out << "  " << what << ' ' << score.tokens << ' ' << score.sentences;
}

} // namespace

std::string measureSegmentation(const LanguageSources& sources, std::span<const std::byte> bytes,
                                std::ostream& out, std::ostream& errors) {
    const auto file = ModelFile::over(bytes);
    if (!file.succeeded()) return file.fault();
    const auto model = SegmentationModel::over(file.value());
    if (!model.succeeded()) return model.fault();
    const LearnedSegmentation& learned = model.value().learned();
    out << std::fixed << std::setprecision(2);
    for (const Source& source : sources.development) {
        const RawText text = rawTextOf(source.corpus, Layout::paragraphs);
        out << source.name;
        // What is not trained for a language is what English has: the state of things without languages.
        print("english", scoreSegmentation(text, "en", nullptr, nullptr), out);
        print("rules", scoreSegmentation(text, sources.language, nullptr, nullptr), out);
        print("learned", scoreSegmentation(text, sources.language, &learned, &errors), out);
        print(
            "wrapped",
            scoreSegmentation(rawTextOf(source.corpus, Layout::wrapped), sources.language, &learned, nullptr),
            out);
        print("lines",
              scoreSegmentation(rawTextOf(source.corpus, Layout::lines), sources.language, &learned, nullptr),
              out);
        out << std::endl;
    }
    return {};
}

} // namespace lexiform::train
