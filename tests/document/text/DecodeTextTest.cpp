#include "document/text/decodeText.h"

#include "document/text/CharsetDecoder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace lexiform::document {
namespace {

using namespace std::string_literals;

/// A text of ASCII and the given letters in UTF-16 or UTF-32.
std::string wide(std::u32string_view text, std::size_t width, bool bigEndian) {
    std::string bytes;
    for (const char32_t point : text)
        for (std::size_t i = 0; i < width; ++i)
            bytes += static_cast<char>(point >> (8 * (bigEndian ? width - 1 - i : i)));
    return bytes;
}

std::string decoded(const std::string& bytes) {
    return decodeText(bytes).value_or("no text");
}

TEST(DecodeText, takesOffTheByteOrderMark) {
    EXPECT_EQ(decoded("\xEF\xBB\xBF"
                      "caf\xC3\xA9"),
              "café");
    EXPECT_EQ(decoded("\xFF\xFE" + wide(U"café", 2, false)), "café");
    EXPECT_EQ(decoded("\xFE\xFF" + wide(U"café", 2, true)), "café");
    EXPECT_EQ(decoded("\xFF\xFE\0\0"s + wide(U"café", 4, false)), "café");
    EXPECT_EQ(decoded("\0\0\xFE\xFF"s + wide(U"café", 4, true)), "café");
    EXPECT_EQ(decoded("\xFF\xFE"), "");
}

TEST(DecodeText, readsSurrogatesAndReplacesHalfOnes) {
    EXPECT_EQ(decoded("\xFE\xFF\xD8\x3D\xDE\x00\0x"s), "😀x");
    EXPECT_EQ(decoded("\xFE\xFF\0a\xD8\x3D\0x"s), "a\uFFFDx");
    EXPECT_EQ(decoded("\xFE\xFF\0a\xDE\x00\0x"s), "a\uFFFDx");
    EXPECT_EQ(decoded("\xFE\xFF\0a\xD8\x3D"s), "a\uFFFD");
    EXPECT_EQ(decoded("\xFE\xFF\0a\0"s), "a\uFFFD");
}

TEST(DecodeText, readsUtf16AndUtf32WithoutAMark) {
    for (const bool bigEndian : {false, true})
        for (const std::size_t width : {2U, 4U})
            for (const auto& [text, expected] :
                 {std::pair(U"The tide"s, "The tide"), std::pair(U"日本 語\n"s, "日本 語\n"),
                  std::pair(U"x"s, "x")})
                EXPECT_EQ(decoded(wide(text, width, bigEndian)), expected) << width << bigEndian;
}

TEST(DecodeText, leavesUtf8AsItIs) {
    EXPECT_EQ(decoded("The tide\r\n\t\u2028é😀"), "The tide\r\n\t\u2028é😀");
    EXPECT_EQ(decoded("\x01 a"), "\x01 a");
}

TEST(DecodeText, replacesWhatIsNotUtf8BehindItsMark) {
    EXPECT_EQ(decoded("\xEF\xBB\xBF"
                      "caf\xE9!"),
              "caf\uFFFD!");
}

TEST(DecodeText, guessesOlderEncodings) {
    EXPECT_EQ(decoded("caf\xE9"), "café");
    EXPECT_EQ(
        decoded(
            "Le caf\xE9 \xE9tait ferm\xE9, et la for\xEAt d\xE9j\xE0 sombre. \x93Tr\xE8s bien\x94, dit-il."),
        "Le café était fermé, et la forêt déjà sombre. “Très bien”, dit-il.");
    const std::string russian =
        "\xCC\xEE\xF0\xE5 \xE1\xFB\xEB\xEE \xF1\xEF\xEE\xEA\xEE\xE9\xED\xEE, \xE8 "
        "\xEB\xEE\xE4\xEA\xE0 \xF1\xF2\xEE\xFF\xEB\xE0 \xF3 \xE1\xE5\xF0\xE5\xE3\xE0.";
    EXPECT_EQ(decoded(russian), "Море было спокойно, и лодка стояла у берега.");
}

TEST(DecodeText, guessesTheEncodingsOfAsia) {
    EXPECT_EQ(decoded("\xB9\xD9\xB4\xD9\xB4\xC2\x20\xC1\xB6\xBF\xEB\xC7\xDF\xB0\xED\x20\xB9\xE8\xB4\xC2\x20"
                      "\xB9\xB0\xB0\xA1"
                      "\xBF\xA1\x20\xC0\xD6\xBE\xFA\xB4\xD9\x2E"),
              "바다는 조용했고 배는 물가에 있었다.");
    EXPECT_EQ(decoded("\xB4\xF3\xBA\xA3\xBA\xDC\xC6\xBD\xBE\xB2\xA3\xAC\xD0\xA1\xB4\xAC\xCD\xA3\xD4\xDA\xB0"
                      "\xB6\xB1\xDF\xA1\xA3"),
              "大海很平静，小船停在岸边。");
}

TEST(DecodeText, looksPastALongStretchOfAscii) {
    std::string text;
    for (int i = 0; i < 2000; ++i)
        text += "plain line\n";
    const std::string japanese =
        "\x82\xB1\x82\xEA\x82\xCD\x93\xFA\x96\x7B\x8C\xEA\x82\xCC\x95\xB6\x8F\xCD\x82\xC5\x82\xB7\x81\x42"
        "\x8A\x43\x82\xCD\x90\xC3\x82\xA9\x82\xC5\x81\x41\x91\x44\x82\xCD\x8A\xDD\x82\xC9\x82\xA0\x82\xE8\x82"
        "\xDC"
        "\x82\xB5\x82\xBD\x81\x42\n";
    EXPECT_TRUE(
        decoded(text + japanese).ends_with("これは日本語の文章です。海は静かで、船は岸にありました。\n"));
}

TEST(DecodeText, readsTheEscapesOfIso2022) {
    EXPECT_EQ(decoded("\x1B$B$3$l$OF|K\\8l$G$9!#\x1B(B ok"), "これは日本語です。 ok");
    EXPECT_EQ(decoded("\x1B[31mred\x1B[0m"), "\x1B[31mred\x1B[0m");
}

TEST(DecodeText, refusesBytesThatAreNoText) {
    EXPECT_EQ(decodeText("a\0b\0\1\0"s), std::nullopt);
    EXPECT_EQ(decodeText("ab\0cd"s), std::nullopt);
    EXPECT_EQ(decodeText("\x89\x02\x91\xFE\x1F"), std::nullopt);
    EXPECT_EQ(decodeText(std::string(64, '\0')), std::nullopt);
}

TEST(CharsetDecoder, refusesNamesThatItDoesNotKnow) {
    EXPECT_FALSE(CharsetDecoder::named("no such charset"));
    EXPECT_FALSE(CharsetDecoder::named(""));
}

TEST(CharsetDecoder, tellsWhetherEveryByteHasAMeaning) {
    auto decoder = CharsetDecoder::named("Shift_JIS");
    ASSERT_TRUE(decoder);
    std::string text;
    EXPECT_TRUE(decoder->append("\x82\xA0", text));
    EXPECT_FALSE(decoder->append("\x82", text));
    EXPECT_TRUE(decoder->append("a", text));
    EXPECT_EQ(text, "あ\uFFFDa");
}

} // namespace
} // namespace lexiform::document
