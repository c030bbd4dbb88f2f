#include "platform/linguistics/LinguisticTagger.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace lexiform {
namespace {

using linguistics::Engine;
using linguistics::ModelStore;

std::shared_ptr<const Engine> englishEngine() {
    const auto models =
        std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{LEXIFORM_MODELS_DIR});
    return std::make_shared<const Engine>(models);
}

std::unique_ptr<Tagger> englishTagger(const std::string& text) {
    auto tagger = linguisticTaggers(englishEngine())(fourSchemes);
    tagger->setString(text);
    return tagger;
}

using Tagged = std::vector<std::pair<std::string, std::string>>;

/// Every token of a range with its tag, "-" for none.
Tagged tagsOf(const std::string& text, TextRange range, NLTokenUnit unit, TagScheme scheme,
              NLTaggerOptions options = NLTaggerOptions()) {
    Tagged tagged;
    englishTagger(text)->enumerateTags(range, unit, scheme, options,
                                       [&](std::optional<std::string_view> tag, TextRange token) {
                                           tagged.emplace_back(substring(text, token), tag.value_or("-"));
                                           return Next::proceed;
                                       });
    return tagged;
}

Tagged taggedWordsOf(const std::string& text, TagScheme scheme = NLTagSchemeNameTypeOrLexicalClass) {
    return tagsOf(text, {0, text.size()}, NLTokenUnit::word, scheme);
}

TEST(LinguisticTagger, saysTheSameOfAParagraphAndOfTheTextThatItIsIn) {
    const std::string title = "Die Insel\n\n";
    const std::string text = title + "Das kleine Schiff brachte jeden Morgen frische Milch auf die Insel.\n";
    std::array<Tagged, 2> tags;
    for (const std::size_t length : {text.size(), title.size()}) {
        LinguisticTagger tagger(englishEngine(), fourSchemes);
        tagger.setString(text);
        tagger.enumerateTags({0, length}, NLTokenUnit::word, NLTagSchemeLanguage, NLTaggerOptions(),
                             [&](std::optional<std::string_view> tag, TextRange token) {
                                 if (token.end() <= title.size())
                                     tags.at(length == text.size() ? 0 : 1)
                                         .emplace_back(substring(text, token), tag.value_or("-"));
                                 return Next::proceed;
                             });
    }
    ASSERT_FALSE(tags[0].empty());
    EXPECT_EQ(tags[0].front().second, "de");
    EXPECT_EQ(tags[1], tags[0]);
}

TEST(LinguisticTagger, countsTheTokensOfARangeFromTheStartOfTheText) {
    LinguisticTagger tagger(englishEngine(), fourSchemes);
    tagger.setString("One.\n\nTwo cats.");
    std::vector<std::size_t> starts;
    tagger.enumerateTags({6, 9}, NLTokenUnit::word, NLTagSchemeLemma, NLTaggerOptions(),
                         [&](std::optional<std::string_view> /*tag*/, TextRange token) {
                             starts.push_back(token.start);
                             return Next::proceed;
                         });
    EXPECT_EQ(starts, (std::vector<std::size_t>{6, 9, 10, 14}));
}

/// The tags of a tagger that was made for one scheme.
Tagged taggedWordsByOneOf(const std::string& text, TagScheme scheme, NLTaggerOptions options) {
    const auto tagger = linguisticTaggers(englishEngine())(std::array{scheme});
    tagger->setString(text);
    Tagged tagged;
    tagger->enumerateTags({0, text.size()}, NLTokenUnit::word, scheme, options,
                          [&](std::optional<std::string_view> tag, TextRange token) {
                              tagged.emplace_back(substring(text, token), tag.value_or("-"));
                              return Next::proceed;
                          });
    return tagged;
}

TEST(LinguisticTagger, saysTheSameWhetherItIsMadeForOneSchemeOrForAll) {
    const std::string text = "Anna Lindqvist saw 12 boats.\n\n“Où sont les autres bateaux ?” she asked.";
    for (const TagScheme scheme : fourSchemes)
        EXPECT_EQ(taggedWordsByOneOf(text, scheme, {}), taggedWordsOf(text, scheme)) << scheme;
}

TEST(LinguisticTagger, joinsNamesAndLeavesWordsOutUnderEveryScheme) {
    const std::string text = "Anna Lindqvist saw the boats.";
    for (const TagScheme scheme : fourSchemes) {
        const NLTaggerOptions options = {NLTaggerOption::joinNames, NLTaggerOption::omitWhitespace,
                                         NLTaggerOption::omitPunctuation};
        const Tagged tagged = taggedWordsByOneOf(text, scheme, options);
        ASSERT_EQ(tagged.size(), 4U) << scheme;
        EXPECT_EQ(tagged.front().first, "Anna Lindqvist") << scheme;
    }
}

TEST(LinguisticTagger, tagsWordsPunctuationAndWhiteSpace) {
    EXPECT_EQ(taggedWordsOf("The old cat sat on the mat.\n"), (Tagged{{"The", "Determiner"},
                                                                      {" ", "Whitespace"},
                                                                      {"old", "Adjective"},
                                                                      {" ", "Whitespace"},
                                                                      {"cat", "Noun"},
                                                                      {" ", "Whitespace"},
                                                                      {"sat", "Verb"},
                                                                      {" ", "Whitespace"},
                                                                      {"on", "Preposition"},
                                                                      {" ", "Whitespace"},
                                                                      {"the", "Determiner"},
                                                                      {" ", "Whitespace"},
                                                                      {"mat", "Noun"},
                                                                      {".", "SentenceTerminator"},
                                                                      {"\n", "ParagraphBreak"}}));
}

TEST(LinguisticTagger, givesEveryTokenATagUnderTheLexicalSchemeInEveryScript) {
    const std::string text =
        "She can't! 海は広い。 Ὁ λόγος 3,5 % 🌊🏳️‍🌈 \u200F שלום \x01 e\u0301";
    std::string joined;
    for (const auto& [token, tag] : taggedWordsOf(text)) {
        EXPECT_NE(tag, "-") << token;
        joined += token;
    }
    EXPECT_EQ(joined, text);
}

TEST(LinguisticTagger, tellsThePunctuationOfOtherLanguagesInATextThatIsPartlyEnglish) {
    const std::string text = "He said « Salut ! » and wrote 「はい」。 Then he left the room.";
    for (const auto& [token, tag] : taggedWordsOf(text)) {
        if (token == "«" || token == "「") {
            EXPECT_EQ(tag, "OpenQuote") << token;
        }
        if (token == "»" || token == "」") {
            EXPECT_EQ(tag, "CloseQuote") << token;
        }
        if (token == "。") {
            EXPECT_EQ(tag, "SentenceTerminator");
        }
    }
}

TEST(LinguisticTagger, tagsEachWordOfANameOfTwoWords) {
    const Tagged tagged = taggedWordsOf("Yesterday John Smith walked home.");
    EXPECT_EQ(tagged[2], (std::pair<std::string, std::string>{"John", "PersonalName"}));
    EXPECT_EQ(tagged[4], (std::pair<std::string, std::string>{"Smith", "PersonalName"}));
}

TEST(LinguisticTagger, tellsTheScriptOfAWord) {
    EXPECT_EQ(taggedWordsOf("sea море", NLTagSchemeScript),
              (Tagged{{"sea", "Latn"}, {" ", "Latn"}, {"море", "Cyrl"}}));
}

TEST(LinguisticTagger, givesNoTagWhereTheTextTellsNone) {
    EXPECT_EQ(taggedWordsOf("42", NLTagSchemeScript), (Tagged{{"42", "-"}}));
    EXPECT_EQ(taggedWordsOf("42", NLTagSchemeLanguage), (Tagged{{"42", "-"}}));
}

TEST(LinguisticTagger, countsRangesInTheTextsOwnBytes) {
    const std::string text = "Ü the cat";
    EXPECT_EQ(tagsOf(text, {3, 3}, NLTokenUnit::word, NLTagSchemeNameTypeOrLexicalClass),
              (Tagged{{"the", "Determiner"}}));
}

TEST(LinguisticTagger, saysTheSameWhetherItWasMadeForOneSchemeOrForAll) {
    const std::string text = "Ada can't swim.\n\n42 море 海 🌊\n";
    const auto models =
        std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{LEXIFORM_MODELS_DIR});
    const TaggerFactory make = linguisticTaggers(std::make_shared<const Engine>(models));
    for (const TagScheme scheme : fourSchemes) {
        const std::unique_ptr<Tagger> alone = make(std::array{scheme});
        alone->setString(text);
        Tagged tagged;
        alone->enumerateTags({0, text.size()}, NLTokenUnit::word, scheme, NLTaggerOptions(),
                             [&](std::optional<std::string_view> tag, TextRange token) {
                                 tagged.emplace_back(substring(text, token), tag.value_or("-"));
                                 return Next::proceed;
                             });
        EXPECT_EQ(tagged, taggedWordsOf(text, scheme)) << scheme;
    }
}

TEST(LinguisticTagger, forgetsTheTextBeforeWhenItIsGivenAnother) {
    const std::unique_ptr<Tagger> tagger = englishTagger("one two");
    const auto words = [&](std::size_t length) {
        int count = 0;
        tagger->enumerateTags({0, length}, NLTokenUnit::word, NLTagSchemeScript, NLTaggerOptions(),
                              [&](std::optional<std::string_view>, TextRange) {
                                  ++count;
                                  return Next::proceed;
                              });
        return count;
    };
    EXPECT_EQ(words(7), 3);
    tagger->setString("one two three");
    EXPECT_EQ(words(13), 5);
}

TEST(LinguisticTagger, stopsWhenTheVisitorHasEnough) {
    int visits = 0;
    englishTagger("one two three")
        ->enumerateTags({0, 13}, NLTokenUnit::word, NLTagSchemeNameTypeOrLexicalClass, NLTaggerOptions(),
                        [&](std::optional<std::string_view>, TextRange) {
                            ++visits;
                            return visits < 2 ? Next::proceed : Next::stop;
                        });
    EXPECT_EQ(visits, 2);
}

TEST(LinguisticTagger, givesSentencesParagraphsAndTheDocument) {
    const std::string text = "It rained. We left.\n\nNobody spoke.";
    const TextRange all{0, text.size()};
    const auto scheme = NLTagSchemeScript;
    EXPECT_EQ(tagsOf(text, all, NLTokenUnit::sentence, scheme),
              (Tagged{{"It rained. ", "Latn"}, {"We left.\n\n", "Latn"}, {"Nobody spoke.", "Latn"}}));
    EXPECT_EQ(tagsOf(text, all, NLTokenUnit::paragraph, scheme),
              (Tagged{{"It rained. We left.\n\n", "Latn"}, {"Nobody spoke.", "Latn"}}));
    EXPECT_EQ(tagsOf(text, all, NLTokenUnit::document, scheme), (Tagged{{text, "Latn"}}));
}

TEST(LinguisticTagger, givesUnitsOfSeveralWordsNoLexicalClass) {
    EXPECT_EQ(tagsOf("It rained.", {0, 10}, NLTokenUnit::sentence, NLTagSchemeNameTypeOrLexicalClass),
              (Tagged{{"It rained.", "-"}}));
}

TEST(LinguisticTagger, leavesOutWhatTheOptionsName) {
    EXPECT_EQ(tagsOf("the cat.", {0, 8}, NLTokenUnit::word, NLTagSchemeNameTypeOrLexicalClass,
                     {NLTaggerOption::omitWhitespace, NLTaggerOption::omitPunctuation}),
              (Tagged{{"the", "Determiner"}, {"cat", "Noun"}}));
}

TEST(LinguisticTagger, visitsNothingInAnEmptyText) {
    for (const auto unit :
         {NLTokenUnit::word, NLTokenUnit::sentence, NLTokenUnit::paragraph, NLTokenUnit::document})
        EXPECT_TRUE(tagsOf("", {0, 0}, unit, NLTagSchemeScript).empty());
}

TEST(LinguisticTaggers, areNotMadeForASchemeThatTheyDoNotKnow) {
    const TaggerFactory make = linguisticTaggers(std::make_shared<const Engine>(
        std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{})));
    const std::array schemes = {NLTagSchemeScript, std::string_view("Mood")};
    EXPECT_EQ(make(schemes), nullptr);
}

TEST(LinguisticTaggerDeathTest, stopsTheProgramForARangeOutsideTheText) {
    EXPECT_DEATH(tagsOf("cat", {1, 9}, NLTokenUnit::word, NLTagSchemeScript), "past the end");
}

TEST(LinguisticTaggerDeathTest, stopsTheProgramForASchemeThatItDoesNotHave) {
    EXPECT_DEATH(tagsOf("cat", {0, 3}, NLTokenUnit::word, "Mood"), "scheme");
}

} // namespace
} // namespace lexiform
