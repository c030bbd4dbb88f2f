#include "tools/train/language/LanguageEvaluation.h"

#include <algorithm>
#include <tuple>

namespace lexiform::train {

namespace {

std::size_t charactersIn(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
    }));
}

double percent(std::size_t part, std::size_t whole) {
    return whole == 0 ? 0 : 100.0 * static_cast<double>(part) / static_cast<double>(whole);
}

} // namespace

void LanguageEvaluation::add(const std::string& language, const std::string& text) {
    const bool isShort = charactersIn(text) < fewestCharacters;
    const std::string answer(identifier_.guess(text).language);
    Count& count = isShort ? shorter_ : counts_[language];
    ++count.texts;
    count.right += answer == language;
    count.silent += answer.empty();
    if (!isShort && answer != language) ++confusions_[{language, answer.empty() ? "-" : answer}];
}

void LanguageEvaluation::print(std::FILE* output) const {
    Count all;
    for (const auto& [language, count] : counts_) {
        std::fprintf(output, "%-4s %6zu texts %6.2f %% right %6.2f %% unanswered\n", language.c_str(),
                     count.texts, percent(count.right, count.texts), percent(count.silent, count.texts));
        all.texts += count.texts;
        all.right += count.right;
    }
    std::fprintf(output, "micro average of %zu texts of %zu characters or more: %.2f\n", all.texts,
                 fewestCharacters, percent(all.right, all.texts));
    std::fprintf(output, "shorter: %.2f of %zu\nconfusions:", percent(shorter_.right, shorter_.texts),
                 shorter_.texts);
    std::vector<std::tuple<std::size_t, std::string, std::string>> ranked;
    for (const auto& [pair, count] : confusions_)
        ranked.emplace_back(count, pair.first, pair.second);
    std::sort(ranked.rbegin(), ranked.rend());
    ranked.resize(std::min<std::size_t>(ranked.size(), 40));
    for (const auto& [count, gold, answer] : ranked)
        std::fprintf(output, " %s>%s:%zu", gold.c_str(), answer.c_str(), count);
    std::fprintf(output, "\n");
}

} // namespace lexiform::train
