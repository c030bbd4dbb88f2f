// Prints every word of a text with its part of speech and its dictionary form.
// Usage: words-of-a-text TEXT

#include <linguistics/Engine.h>

#include <iostream>
#include <string_view>

int main(int count, char** arguments) {
    using namespace lexiform::linguistics;
    const std::string_view text = count > 1 ? arguments[1] : "The cats sat on the mat.";
    const auto models =
        std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{LEXIFORM_MODELS});
    const Engine engine(models);
    engine.analyse(text, [&](const Paragraph& paragraph) {
        for (const Token& token : paragraph.tokens)
            if (token.kind == TokenKind::word)
                std::cout << text.substr(token.range.start, token.range.length) << '\t' << nameOf(token.pos)
                          << '\t' << token.lemma.value_or("-") << '\n';
        return true; // go on to the next paragraph
    });
}
