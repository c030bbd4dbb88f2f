#include "tools/train/silver/readText.h"

#include "linguistics/segmentation/SentenceMarker.h"
#include "linguistics/segmentation/Tokeniser.h"

#include <fstream>
#include <string>

namespace lexiform::train {

using namespace linguistics;

namespace {

GoldToken wordOf(std::string_view form) {
    GoldToken word;
    word.form = form;
    word.spaceAfter = false;
    return word;
}

// A paragraph's last word has a space after it, so that the next starts apart.
void addSentences(const std::string& paragraph, const std::vector<Token>& tokens, Corpus& corpus) {
    bool startsParagraph = true;
    for (const Token& token : tokens) {
        if (isBlank(token)) {
            if (!startsParagraph) corpus.back().tokens.back().spaceAfter = true;
            continue;
        }
        if (token.startsSentence || startsParagraph) corpus.push_back({{}, startsParagraph});
        startsParagraph = false;
        corpus.back().tokens.push_back(wordOf(substring(paragraph, token.range)));
    }
    if (!startsParagraph) corpus.back().tokens.back().spaceAfter = true;
}

} // namespace

Outcome<Corpus, std::string> readText(const std::filesystem::path& file, std::string_view language,
                                      std::size_t most) {
    std::ifstream input(file, std::ios::binary);
    if (!input) return file.string() + ": it cannot be opened";
    Corpus corpus;
    const auto size = static_cast<std::size_t>(std::filesystem::file_size(file));
    Tokeniser tokeniser;
    std::vector<Token> tokens;
    std::size_t taken = 0, passed = 0;
    for (std::string line; std::getline(input, line);) {
        passed += line.size() + 1;
        // The share of what is passed that may be taken.
        if (size > most && taken * size > passed * most) continue;
        taken += line.size() + 1;
        tokens.clear();
        tokeniser.tokenise(line, 0, language, nullptr, tokens);
        markSentences(line, tokens);
        addSentences(line, tokens, corpus);
    }
    return corpus;
}

} // namespace lexiform::train
