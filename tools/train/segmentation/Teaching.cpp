#include "tools/train/segmentation/Teaching.h"

#include "linguistics/segmentation/LowerCasedHash.h"
#include "linguistics/segmentation/ParagraphSplitter.h"
#include "linguistics/segmentation/SentenceMarker.h"
#include "linguistics/segmentation/Tokeniser.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace lexiform::train {

using namespace linguistics;

namespace {

constexpr std::size_t fewestOfEnding = 3;

/// Answers by the annotation, and keeps each question.
class Teacher final : public Decider {
public:
    Teacher(const std::vector<bool>& answers, bool negated, Examples& examples)
        : answers_(answers), negated_(negated), examples_(examples) {}

    /// The place in the annotated text where the paragraph at hand starts.
    void startAt(std::size_t offset) { offset_ = offset; }

    [[nodiscard]] bool decide(std::size_t at, std::span<const std::uint32_t> features) const override {
        const bool answer = answers_[offset_ + at] != negated_;
        examples_.add(features, answer);
        return answer;
    }

private:
    const std::vector<bool>& answers_;
    bool negated_;
    Examples& examples_;
    std::size_t offset_ = 0;
};

bool isLetterAt(std::string_view text, std::size_t at) {
    return Characters::table().classOf(codePointAt(text, at)) == CharacterClass::letter;
}

std::size_t startOfLast(std::string_view text) {
    std::size_t at = text.size() - 1;
    while (at > 0 && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80)
        --at;
    return at;
}

std::size_t endOfLetters(std::string_view text, std::size_t at) {
    while (at < text.size() && isLetterAt(text, at))
        at += codePointAt(text, at).length;
    return at;
}

} // namespace

void gatherExamples(const RawText& raw, std::string_view language, const LearnedSegmentation& learned,
                    bool ofTokens, SegmentationExamples& examples) {
    Teacher tokenEnds(raw.tokenEnds, false, examples.tokenEnds);
    Teacher characters(raw.tokenEnds, false, examples.characters);
    Teacher spaceJoins(raw.inToken, false, examples.spaceJoins);
    Teacher sentenceEnds(raw.sentenceStarts, false, examples.sentenceEnds);
    LearnedSegmentation taught = learned;
    if (ofTokens) {
        taught.tokenEnds = &tokenEnds;
        if (learned.characters || language == "zh") taught.characters = &characters;
        if (learned.spaceJoins || language == "vi") taught.spaceJoins = &spaceJoins;
    }
    taught.sentenceEnds = ofTokens ? nullptr : &sentenceEnds;
    Tokeniser tokeniser;
    std::vector<Token> tokens;
    for (std::size_t start = 0; start < raw.text.size();) {
        const TextRange range = paragraphAt(raw.text, start);
        tokens.clear();
        for (Teacher* teacher : {&tokenEnds, &characters, &spaceJoins})
            teacher->startAt(start);
        tokeniser.tokenise(substring(raw.text, range), start, language, &taught, tokens);
        sentenceEnds.startAt(start);
        if (!ofTokens) markSentences(raw.text, tokens, &taught);
        start = range.end();
    }
}

WordEndings endingsIn(const std::vector<RawText>& texts) {
    std::map<std::uint32_t, std::size_t> counts;
    std::map<std::uint32_t, std::set<std::size_t>> pairsOf;
    for (const RawText& raw : texts) {
        const std::string_view text = raw.text;
        for (std::size_t at = 1; at < text.size(); ++at) {
            if (!raw.tokenEnds[at] || !isLetterAt(text, at) ||
                !isLetterAt(text, startOfLast(text.substr(0, at))))
                continue;
            const std::size_t end = endOfLetters(text, at);
            if (end - at > 12) continue;
            const std::uint32_t hash = lowerCasedHash(text.substr(at, end - at));
            ++counts[hash];
            pairsOf[hash].insert(PairSet::placeOf(text[end - 2], text[end - 1]));
        }
    }
    WordEndings found;
    for (const auto& [hash, count] : counts) {
        if (count < fewestOfEnding) continue;
        found.endings.push_back(hash);
        found.pairs.resize(PairSet::bytes);
        for (const std::size_t place : pairsOf[hash])
            found.pairs[place / 8] = static_cast<std::uint8_t>(found.pairs[place / 8] | 1U << place % 8);
    }
    return found;
}

} // namespace lexiform::train
