#include "tools/lexiform-cli/JsonWriter.h"

#include "tests/tools/lexiform-cli/HandMadeText.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace lexiform::cli {
namespace {

using Json = nlohmann::json;
using enum linguistics::UniversalPos;

/// The list of one text that consists of these blocks of one paragraph each.
Json listOf(const std::vector<HandMadeText>& blocks, std::string_view name = "") {
    const JsonFormat format;
    std::string out = format.start() + format.startText(name, true);
    std::size_t offset = 0;
    for (const HandMadeText& made : blocks) {
        JsonWriter writer;
        Piece piece;
        writer.paragraph(made.paragraph, {made.text, offset}, piece);
        writer.endBlock(piece);
        piece.appendTo(out, 0);
        offset += made.text.size();
    }
    return Json::parse(out + format.endText() + format.end());
}

TEST(JsonWriter, writesParagraphsOfSentencesOfTokens) {
    HandMadeText made;
    made.word("Été", NOUN, true).space(" ").mark(".").space(" ").word("Oui", INTJ, true);
    const Json sentences = listOf({made})[0]["paragraphs"][0]["sentences"];
    ASSERT_EQ(sentences.size(), 2U);
    ASSERT_EQ(sentences[0]["tokens"].size(), 2U);
    EXPECT_EQ(sentences[0]["tokens"][0],
              Json::parse(R"({"text": "Été", "start": 0, "length": 5, "lemma": null,
        "pos": "NOUN", "tag": "Noun", "script": "Latn", "language": "en"})"));
    EXPECT_EQ(sentences[1]["tokens"][0]["start"], 8);
}

TEST(JsonWriter, writesOneListWhateverTheBlocks) {
    HandMadeText one, blank;
    one.word("a", DET, true).lineBreak("\n");
    blank.lineBreak("\n");
    const Json paragraphs = listOf({blank, one, blank, one})[0]["paragraphs"];
    ASSERT_EQ(paragraphs.size(), 4U);
    EXPECT_EQ(paragraphs[0]["sentences"].size(), 0U);
    EXPECT_EQ(paragraphs[3]["sentences"][0]["tokens"][0]["start"], 4);
}

TEST(JsonWriter, givesQuotesControlsAndStrayBytesAsJsonWantsThem) {
    HandMadeText made;
    made.add("\"\\\x01\xFF", {.startsSentence = true, .lemma = "\""});
    const Json token = listOf({made})[0]["paragraphs"][0]["sentences"][0]["tokens"][0];
    EXPECT_EQ(token["text"], "\"\\\x01\uFFFD");
    EXPECT_EQ(token["lemma"], "\"");
    EXPECT_TRUE(token["language"].is_null());
}

TEST(JsonWriter, writesAnEmptyTextAsOneWithoutParagraphs) {
    EXPECT_EQ(listOf({}), Json::parse(R"([{"file": null, "paragraphs": []}])"));
    EXPECT_EQ(listOf({}, "a.txt")[0]["file"], "a.txt");
}

} // namespace
} // namespace lexiform::cli
