#include "tools/train/segmentation/SegmentationScore.h"

#include "linguistics/segmentation/ParagraphSplitter.h"
#include "linguistics/segmentation/SentenceMarker.h"
#include "linguistics/segmentation/Tokeniser.h"

#include <set>
#include <string>

namespace lexiform::train {

using namespace linguistics;

namespace {

using Spans = std::set<std::pair<std::size_t, std::size_t>>;

std::size_t skipBlanks(std::string_view text, std::size_t at) {
    while (at < text.size() && (text[at] == ' ' || text[at] == '\n'))
        ++at;
    return at;
}

Spans goldTokens(const RawText& raw) {
    Spans spans;
    std::size_t start = skipBlanks(raw.text, 0);
    for (std::size_t at = 1; at <= raw.text.size(); ++at) {
        if (!raw.tokenEnds[at]) continue;
        spans.emplace(start, at);
        start = skipBlanks(raw.text, at);
    }
    return spans;
}

// From each start to the next.
Spans spansBetween(const std::set<std::size_t>& starts, std::size_t end) {
    Spans spans;
    for (auto start = starts.begin(); start != starts.end(); ++start)
        spans.emplace(*start, std::next(start) == starts.end() ? end : *std::next(start));
    return spans;
}

double f1(const Spans& system, const Spans& gold) {
    std::size_t right = 0;
    for (const auto& span : system)
        right += gold.count(span);
    return right == 0 ? 0
                      : 200.0 * static_cast<double>(right) / static_cast<double>(system.size() + gold.size());
}

std::string oneLine(std::string_view text, std::size_t start, std::size_t end) {
    std::string line(text.substr(start, end - start));
    for (char& c : line)
        if (c == '\n') c = '~';
    return line;
}

void writeErrors(const RawText& raw, const Spans& system, const Spans& gold, const std::string& what,
                 std::ostream& errors) {
    const auto put = [&](const char* sign, const Spans& spans, const Spans& others) {
        for (const auto& [start, end] : spans)
            if (!others.count({start, end}))
                errors << what << sign << '\t' << oneLine(raw.text, start, std::min(end, start + 60)) << "\t…"
                       << oneLine(raw.text, start - std::min<std::size_t>(start, 30),
                                  std::min(raw.text.size(), start + 40))
                       << '\n';
    };
    put("+", system, gold);
    put("-", gold, system);
}

} // namespace

SegmentationScore scoreSegmentation(const RawText& raw, std::string_view language,
                                    const LearnedSegmentation* learned, std::ostream* errors) {
    Tokeniser tokeniser;
    std::vector<Token> tokens;
    Spans systemTokens;
    std::set<std::size_t> systemStarts, goldStarts;
    for (std::size_t start = 0; start < raw.text.size();) {
        const TextRange range = paragraphAt(raw.text, start);
        tokens.clear();
        tokeniser.tokenise(substring(raw.text, range), start, language, learned, tokens);
        markSentences(raw.text, tokens, learned);
        for (const Token& token : tokens) {
            if (isBlank(token)) continue;
            systemTokens.emplace(token.range.start, token.range.end());
            if (token.startsSentence) systemStarts.insert(token.range.start);
        }
        start = range.end();
    }
    for (std::size_t at = 0; at < raw.text.size(); ++at)
        if (raw.sentenceStarts[at]) goldStarts.insert(at);
    const Spans gold = goldTokens(raw);
    const Spans systemSentences = spansBetween(systemStarts, raw.text.size());
    const Spans goldSentences = spansBetween(goldStarts, raw.text.size());
    if (errors) {
        writeErrors(raw, systemTokens, gold, "token", *errors);
        writeErrors(raw, systemSentences, goldSentences, "sentence", *errors);
    }
    return {f1(systemTokens, gold), f1(systemSentences, goldSentences)};
}

} // namespace lexiform::train
