#include "tools/train/network/OpenText.h"

#include "linguistics/segmentation/SentenceMarker.h"
#include "linguistics/segmentation/Tokeniser.h"

#include <fstream>

namespace lexiform::train {

namespace {

using namespace linguistics;

/// Cuts paragraphs into the words of sentences.
class Cutter {
public:
    Cutter(OpenText& text, std::string_view language, FormTable& forms)
        : text_(text), language_(language), forms_(forms) {}

    void cut(std::string_view paragraph) {
        tokens_.clear();
        tokeniser_.tokenise(paragraph, 0, language_, nullptr, tokens_);
        markSentences(paragraph, tokens_);
        for (const Token& token : tokens_) {
            if (token.startsSentence) endSentence();
            if (!isBlank(token)) sentence_.push_back(forms_.numberOf(substring(paragraph, token.range)));
        }
        endSentence();
    }

private:
    void endSentence() {
        if (!sentence_.empty()) text_.add(sentence_);
        sentence_.clear();
    }

    OpenText& text_;
    std::string_view language_;
    FormTable& forms_;
    Tokeniser tokeniser_;
    std::vector<Token> tokens_;
    std::vector<std::uint32_t> sentence_;
};

} // namespace

std::optional<std::string> OpenText::add(const std::filesystem::path& file, std::string_view language,
                                         std::size_t mostBytes, FormTable& forms) {
    std::ifstream input(file, std::ios::binary);
    if (!input) return file.string() + ": it cannot be opened";
    const auto size = static_cast<std::size_t>(std::filesystem::file_size(file));
    Cutter cutter(*this, language, forms);
    std::size_t taken = 0, passed = 0;
    for (std::string line; std::getline(input, line);) {
        passed += line.size() + 1;
        // The share of what is passed that may be taken.
        if (size > mostBytes && taken * size > passed * mostBytes) continue;
        taken += line.size() + 1;
        cutter.cut(line);
    }
    return std::nullopt;
}

void OpenText::add(std::span<const std::uint32_t> sentence) {
    words_.insert(words_.end(), sentence.begin(), sentence.end());
    ends_.push_back(words_.size());
}

} // namespace lexiform::train
