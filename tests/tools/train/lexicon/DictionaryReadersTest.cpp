#include "tools/train/lexicon/DictionaryReaders.h"
#include "tests/tools/train/TextFile.h"
#include "tools/train/lexicon/JsonStrings.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

// What a reader takes, as "form:letter" separated by spaces.
template <typename Read>
std::string taken(std::string_view name, std::string_view text, Read read) {
    const TextFolder folder(name);
    std::string all;
    const auto fault = read(folder.write("list", text), [&](std::string_view form, char pos) {
        (all += all.empty() ? "" : " ").append(form).append(":") += pos;
    });
    EXPECT_FALSE(fault);
    return all;
}

TEST(JsonStrings, areGivenWithTheirDepth) {
    std::string all;
    eachString(
        R"({"a": ["b", "c\"d", "\u00e9"], "e": "f"})",
        [&](const std::string& string, std::size_t depth) { all += string + std::to_string(depth) + " "; });
    EXPECT_EQ(all, "a1 b2 c\"d2 é2 e1 f1 ");
}

TEST(JsonStrings, areLeftOutWhereTheyAreBroken) {
    std::string all;
    const auto take = [&](const std::string& string, std::size_t) { all += string; };
    eachString("}]\"a\" \"b", take);
    eachString("\"c\\u12", take);
    eachString("\"d\\", take);
    EXPECT_EQ(all, "a");
}

TEST(DictionaryReaders, readListsOfLemmasAndTablesOfForms) {
    EXPECT_EQ(taken("lists", R"({"adj": ["old"], "adv": ["soon"], "verb": ["go"]})", readLemmaIndex),
              "old:j soon:r go:v");
    EXPECT_EQ(taken("tables", R"({"adj": {"older": ["old"], "best": ["good", "well"]}})", readLemmaIndex),
              "older:j best:j");
}

TEST(DictionaryReaders, readFormsOfOnePartOfSpeech) {
    EXPECT_EQ(taken("forms", R"({"case": "casa", "gatti": "gatto"})",
                    [](const auto& file, const TakeForm& take) { return readLemmaLookup(file, 'n', take); }),
              "case:n gatti:n");
}

TEST(DictionaryReaders, readEnglishInflections) {
    EXPECT_EQ(taken("inflections",
                    "go\tgone\tV;V.PTCP;PST\ngo\tgoing\tV;V.PTCP;PRS\ngo\twent\tV;PST\ncat\tcats\tN;PL\n"
                    "go\tgoes\tV;PRS;3;SG\nbroken line\n",
                    readInflections),
              "gone:p going:g went:d cats:s goes:z");
}

TEST(DictionaryReaders, readGermanFormsByThePlainPartOfTheTag) {
    EXPECT_EQ(
        taken("german",
              "# forms\nHaus\tHaus\tSUB:NOM:SIN:NEU\ngeht\tgehen\tVER:3:SIN:PR\xC3\x83\nunter\tunter\tXYZ\n",
              readGermanForms),
        "Haus:n geht:v");
}

TEST(DictionaryReaders, readPortugueseForms) {
    EXPECT_EQ(taken("portuguese", "casa\tcasa\tNCFS000\nfalado\tfalar\tVMP00SM\nfalar\tfalar\tVMN0000\n",
                    readPortugueseForms),
              "casa:n falado:q falar:i");
}

TEST(DictionaryReaders, readTurkishRoots) {
    EXPECT_EQ(taken("turkish", "gitmek\nadam\nacil [P:Adj]\n", readTurkishRoots), "gitmek:v adam:n acil:j");
}

TEST(DictionaryReaders, sayWhichFileIsMissing) {
    const auto fault = readTurkishRoots("/nonexistent/roots", [](std::string_view, char) {});
    ASSERT_TRUE(fault);
    EXPECT_EQ(*fault, "/nonexistent/roots: it cannot be opened");
}

} // namespace
} // namespace lexiform::train
