#include "base/TextRange.h"
#include "linguistics/Engine.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

// What the models say of a short text in each language. After a change that is meant, look at what
//     LEXIFORM_APPROVE=1 linguistics-tests --gtest_filter='*Golden*'
// writes, and commit it if it is right.

namespace lexiform::linguistics {
namespace {

namespace fs = std::filesystem;

const fs::path folder = fs::path(LEXIFORM_SOURCE_DIR) / "tests/golden/languages";

std::string contentOf(const fs::path& file) {
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

std::string_view wordFor(NameType name) {
    switch (name) {
    case NameType::person:
        return " person";
    case NameType::place:
        return " place";
    case NameType::organization:
        return " organization";
    default:
        return "";
    }
}

void describe(const Token& token, std::string_view text, std::string& out) {
    if (isBlank(token)) return;
    if (token.startsSentence)
        out.append(out.empty() ? "" : "\n").append("# ").append(token.language).append("\n");
    out.append(substring(text, token.range)).append("\t").append(nameOf(token.pos)).append("\t");
    out.append(token.lemma.value_or("")).append(wordFor(token.name)).append("\n");
}

std::string described(const std::string& text) {
    static const Engine engine(
        std::make_shared<const ModelStore>(std::vector<fs::path>{LEXIFORM_MODELS_DIR}));
    std::string out;
    engine.analyse(text, [&](const Paragraph& paragraph) {
        for (const Token& token : paragraph.tokens)
            describe(token, text, out);
        return true;
    });
    return out;
}

class Golden : public testing::TestWithParam<const char*> {};

TEST_P(Golden, theModelSaysWhatWasApproved) {
    const fs::path approved = folder / (std::string(GetParam()) + ".tokens");
    const std::string text = contentOf(folder / (std::string(GetParam()) + ".txt"));
    ASSERT_FALSE(text.empty());
    const std::string now = described(text);
    if (std::getenv("LEXIFORM_APPROVE") != nullptr) std::ofstream(approved, std::ios::binary) << now;
    EXPECT_EQ(now, contentOf(approved));
}

INSTANTIATE_TEST_SUITE_P(Language, Golden,
                         testing::Values("en", "de", "fr", "es", "it", "pt", "ru", "tr", "nl", "da", "sv",
                                         "nb", "fi", "ro", "ca", "id", "zh", "ko", "vi"),
                         [](const auto& info) { return std::string(info.param); });

} // namespace
} // namespace lexiform::linguistics
