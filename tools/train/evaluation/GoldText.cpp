#include "tools/train/evaluation/GoldText.h"

#include <algorithm>

namespace lexiform::train {

GoldText textOf(const Corpus& corpus) {
    GoldText result;
    std::string& text = result.text;
    for (const GoldSentence& sentence : corpus) {
        if (sentence.startsParagraph && !text.empty())
            text += "\n\n";
        else if (!text.empty() && text.back() != ' ')
            text += ' ';
        result.sentenceStarts.push_back(text.size());
        for (const GoldToken& token : sentence.tokens) {
            result.tokens.push_back({text.size(), token.form.size()});
            text += token.form;
            if (token.spaceAfter) text += ' ';
        }
    }
    return result;
}

bool tellsSpaces(const Corpus& corpus) {
    return std::any_of(corpus.begin(), corpus.end(), [](const GoldSentence& sentence) {
        return std::any_of(sentence.tokens.begin(), sentence.tokens.end(),
                           [](const GoldToken& token) { return !token.spaceAfter; });
    });
}

} // namespace lexiform::train
