#include "tools/train/segmentation/trainSegmentation.h"

#include "linguistics/segmentation/LinearClassifier.h"
#include "linguistics/segmentation/SegmentationModel.h"
#include "tools/train/segmentation/CompoundCounts.h"
#include "tools/train/segmentation/SimplifiedCharacters.h"
#include "tools/train/segmentation/Teaching.h"
#include "tools/train/segmentation/UsualSpacing.h"
#include "tools/train/segmentation/WordCounts.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <string>

namespace lexiform::train {

using namespace linguistics;

namespace {

constexpr std::size_t mostCommonWords = 4000;
// Of open text no more is read than this, in bytes: enough to know a language's abbreviations.
constexpr std::size_t mostOpenText = std::size_t{12} << 20;

std::string startOf(const std::filesystem::path& file) {
    std::ifstream input(file, std::ios::binary);
    std::string text(mostOpenText, '\0');
    input.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(input.gcount()));
    return text;
}

/// A classifier with the weights that it is over.
struct Learnt {
    std::vector<std::int8_t> weights;
    std::optional<LinearClassifier> classifier;
};

/// Learns one language.
class Training {
public:
    Training(const LanguageSources& sources, ModelFileWriter& image, std::ostream& log)
        : sources_(sources), image_(image), log_(log) {}

    void run() {
        layOut();
        countWords();
        if (sources_.language == "vi") countCompounds();
        learnTokens();
        learnSentences();
    }

private:
    void layOut() {
        for (const Source& source : sources_.training) {
            if (!source.hasSpacing) continue;
            log_ << "  " << source.name << ": " << source.corpus.size() << " sentences\n";
            layOut(source.corpus, source.hasSentences);
            if (hasLostSpacing(source.corpus)) layOut(withUsualSpacing(source.corpus), source.hasSentences);
            if (sources_.language == "zh") layOut(inSimplifiedCharacters(source.corpus), source.hasSentences);
        }
    }

    void layOut(const Corpus& corpus, bool hasSentences) {
        texts_.push_back(rawTextOf(corpus, Layout::paragraphs));
        if (!hasSentences) return;
        sentences_.push_back(texts_.back());
        lines_.push_back(rawTextOf(corpus, Layout::lines));
        wrapped_.push_back(rawTextOf(corpus, Layout::wrapped));
    }

    void countWords() {
        WordCounts counts;
        for (const RawText& raw : texts_)
            counts.read(raw.text);
        for (const auto& file : sources_.openTexts)
            counts.read(startOf(file));
        abbreviations_ = counts.abbreviations();
        commonWords_ = counts.commonWords(mostCommonWords);
        endings_ = endingsIn(texts_);
        learned_.abbreviations = WordSet(abbreviations_);
        learned_.commonWords = WordSet(commonWords_);
        learned_.endings = WordSet(endings_.endings);
        learned_.endingPairs = PairSet(endings_.pairs);
        append(SegmentationSection::abbreviations, abbreviations_);
        append(SegmentationSection::commonWords, commonWords_);
        append(SegmentationSection::endings, endings_.endings);
        append(SegmentationSection::endingPairs, endings_.pairs);
        log_ << "  " << abbreviations_.size() << " abbreviations, " << commonWords_.size()
             << " common words, " << endings_.endings.size() << " endings\n";
    }

    void countCompounds() {
        CompoundCounts counts;
        for (const auto& file : sources_.openTexts)
            counts.read(startOf(file));
        compounds_ = counts.pairs(20000, 4);
        strongCompounds_ = counts.pairs(8000, 40);
        learned_.compounds = WordSet(compounds_);
        learned_.strongCompounds = WordSet(strongCompounds_);
        append(SegmentationSection::compounds, compounds_);
        append(SegmentationSection::strongCompounds, strongCompounds_);
    }

    template <typename Value>
    void append(SegmentationSection section, const std::vector<Value>& values) {
        if (!values.empty()) image_.append(static_cast<SectionId>(section), segmentationVersion, values);
    }

    void learnTokens() {
        SegmentationExamples examples;
        for (const RawText& raw : texts_)
            gatherExamples(raw, sources_.language, learned_, true, examples);
        learned_.tokenEnds =
            learn(SegmentationSection::tokenEnds, examples.tokenEnds, sizeOfTable(2), tokenEnds_);
        learned_.characters =
            learn(SegmentationSection::characters, examples.characters, std::size_t{1} << 18, characters_);
        learned_.spaceJoins =
            learn(SegmentationSection::spaceJoins, examples.spaceJoins, std::size_t{1} << 16, spaceJoins_);
    }

    void learnSentences() {
        SegmentationExamples examples;
        for (const auto* texts : {&sentences_, &lines_, &wrapped_})
            for (const RawText& raw : *texts)
                gatherExamples(raw, sources_.language, learned_, false, examples);
        learn(SegmentationSection::sentenceEnds, examples.sentenceEnds, sizeOfTable(1), sentenceEnds_);
    }

    // Chinese needs its room for the characters, and has few other decisions.
    std::size_t sizeOfTable(int smaller) const {
        return std::size_t{1} << (15 - (sources_.language == "zh" ? smaller : 0));
    }

    const Decider* learn(SegmentationSection section, const Examples& examples, std::size_t size,
                         Learnt& learnt) {
        if (examples.size() == 0) return nullptr;
        LinearTraining training;
        training.tableSize = size;
        if (section == SegmentationSection::sentenceEnds) {
            // Slowly, so that the rules stay where there is little to learn from. Korean has no capitals and
            // leaves out many full stops: only the words tell, and the rules know none.
            training.rate = sources_.language == "ko" ? 0.1F : 0.05F;
            training.trustInRules = 3;
        }
        learnt.weights = trainLinear(examples, training);
        append(section, learnt.weights);
        learnt.classifier.emplace(learnt.weights);
        std::size_t right = 0;
        for (std::size_t i = 0; i < examples.size(); ++i)
            right += learnt.classifier->decide(0, examples.features(i)) == examples.answer(i);
        log_ << "  section " << static_cast<std::uint32_t>(section) << ": " << examples.size()
             << " decisions, " << examples.size() - right << " wrong after training\n";
        return &*learnt.classifier;
    }

    const LanguageSources& sources_;
    ModelFileWriter& image_;
    std::ostream& log_;
    std::vector<RawText> texts_;                       ///< all, to cut into tokens
    std::vector<RawText> sentences_, lines_, wrapped_; ///< in three layouts, to cut into sentences
    std::vector<std::uint32_t> abbreviations_, commonWords_, compounds_, strongCompounds_;
    WordEndings endings_;
    LearnedSegmentation learned_;
    Learnt tokenEnds_, characters_, spaceJoins_, sentenceEnds_;
};

} // namespace

void trainSegmentation(const LanguageSources& sources, ModelFileWriter& image, std::ostream& log) {
    Training(sources, image, log).run();
}

} // namespace lexiform::train
