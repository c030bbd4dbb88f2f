#include "tools/train/corpora/NameListReader.h"

#include "tools/train/corpora/Lines.h"
#include "tools/train/corpora/NameTags.h"

#include <fstream>

namespace lexiform::train {

namespace {

using linguistics::NameLabel;

void put(GoldSentence& sentence, std::string_view form, std::string_view tag) {
    if (!sentence.tokens.empty() && sentence.tokens.back().form == "@") {
        sentence.tokens.back().form += form;
        return;
    }
    const NameLabel previous = sentence.tokens.empty() ? NameLabel::outside : sentence.tokens.back().name;
    GoldToken token;
    token.form = form;
    token.name = form.starts_with('@') ? NameLabel::outside : repaired(previous, nameLabelSpelt(tag));
    sentence.tokens.push_back(std::move(token));
}

} // namespace

Outcome<Corpus, std::string> readNameList(const std::filesystem::path& file) {
    std::ifstream input(file, std::ios::binary);
    if (!input) return file.string() + ": it cannot be opened";
    Corpus corpus;
    GoldSentence sentence;
    std::string line;
    for (std::size_t number = 1; std::getline(input, line); ++number) {
        if (line.empty()) {
            if (!sentence.tokens.empty()) corpus.push_back(std::move(sentence));
            sentence = {};
            continue;
        }
        const auto parts = partsOf(line, '\t');
        if (parts.size() != 2)
            return file.string() + ":" + std::to_string(number) + ": the line has not two columns";
        if (!parts[0].empty()) put(sentence, parts[0], parts[1]);
    }
    if (!sentence.tokens.empty()) corpus.push_back(std::move(sentence));
    return corpus;
}

} // namespace lexiform::train
