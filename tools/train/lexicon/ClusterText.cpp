#include "tools/train/lexicon/ClusterText.h"

#include "linguistics/segmentation/Tokeniser.h"
#include "linguistics/tagging/WordTraits.h"

namespace lexiform::train {

namespace {

// About this many bytes of a text make a token.
constexpr std::size_t bytesPerToken = 5;

} // namespace

void addForClusters(const Corpus& corpus, WordClusters& clusters) {
    for (const GoldSentence& sentence : corpus) {
        for (const GoldToken& token : sentence.tokens)
            clusters.add(linguistics::normalForm(token.form));
        clusters.add("");
    }
}

ReadFault addForClusters(const std::filesystem::path& file, std::size_t mostTokens, WordClusters& clusters,
                         std::size_t& added) {
    std::error_code unknown;
    const std::size_t bytes = std::filesystem::file_size(file, unknown);
    const std::size_t step = unknown ? 1 : 1 + bytes / (bytesPerToken * mostTokens);
    linguistics::Tokeniser tokeniser;
    std::vector<linguistics::Token> tokens;
    std::size_t number = 0;
    return eachLine(file, [&](std::string_view line) {
        if (number++ % step != 0) return;
        tokens.clear();
        tokeniser.tokenise(line, 0, "en", nullptr, tokens);
        for (const linguistics::Token& token : tokens) {
            if (token.kind == linguistics::TokenKind::whitespace) continue;
            clusters.add(linguistics::normalForm(substring(line, token.range)));
            ++added;
        }
        clusters.add("");
    });
}

} // namespace lexiform::train
