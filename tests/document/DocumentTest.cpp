#include "document/Document.h"

#include "document/rtf/RtfReader.h"

#include "tests/document/support/DocumentUnderTest.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

TEST(Document, isEmptyAtCreation) {
    const Document document{std::make_shared<PlainStoryboard>()};
    EXPECT_EQ(document.thePath, "");
    EXPECT_EQ(document.theData, "");
    EXPECT_EQ(document.theType, "");
    EXPECT_FALSE(Document::autosavesInPlace);
}

TEST(Document, keepsTheBytesPathAndTypeThatItIsRead) {
    DocumentUnderTest test;
    test.read("The tide\n");
    EXPECT_EQ(test.document.theData, "The tide\n");
    EXPECT_EQ(test.document.thePath, "/texts/harbour.txt");
    EXPECT_EQ(test.document.theType, "public.plain-text");
    EXPECT_EQ(test.window.input->plainText(), "as the window made it");
}

TEST(Document, refusesEmptyBytesWithTheDocumentErrorAndKeepsItsFields) {
    DocumentUnderTest test;
    test.read("before");
    const auto outcome = test.document.readFromData("", "public.rtf");
    ASSERT_FALSE(outcome.succeeded());
    EXPECT_EQ(outcome.fault(), (DocumentError{"NSOSStatusErrorDomain", -4}));
    EXPECT_EQ(test.document.theData, "before");
    EXPECT_EQ(test.document.theType, "public.plain-text");
}

TEST(Document, movesItsTextIntoTheInputPaneWhenTheWindowIsMade) {
    DocumentUnderTest test;
    test.read("The tide\r\ncomes in.");
    test.document.makeWindowControllers();
    EXPECT_EQ(test.window.input->content, AttributedText("The tide\r\ncomes in.", Colour::text));
    EXPECT_EQ(test.document.windowControllers.size(), 1U);
}

TEST(Document, leavesTheInputPaneOfANewDocumentAsTheWindowMadeIt) {
    DocumentUnderTest test;
    test.document.makeWindowControllers();
    EXPECT_EQ(test.window.input->plainText(), "as the window made it");
}

TEST(Document, leavesTheInputPaneAsItWasForBytesThatAreNotUtf8) {
    DocumentUnderTest test;
    test.read("caf\xE9");
    test.document.makeWindowControllers();
    EXPECT_EQ(test.window.input->plainText(), "as the window made it");
}

TEST(Document, readsTextOfATypeThatDiffersInAnyWayByWhatItIs) {
    for (const std::string_view type :
         {"Public.plain-text", "public.utf8-plain-text", "public.plain-text ", "public.rtf", ""}) {
        DocumentUnderTest test;
        test.read("caf\xE9", std::string(type));
        test.document.makeWindowControllers();
        EXPECT_EQ(test.window.input->plainText(), "caf\u00E9") << type;
    }
}

TEST(Document, loadsOnlyTheCharactersOfRichText) {
    DocumentUnderTest test;
    test.read("{\\rtf1{\\colortbl;\\red215\\green0\\blue21;}The \\cf1\\b tide\\par}", "public.rtf");
    test.document.makeWindowControllers();
    EXPECT_EQ(test.window.input->content, AttributedText("The tide\n", Colour::text));
}

TEST(Document, takesRichTextUnderThePlainTypeForItsCharacters) {
    DocumentUnderTest test;
    test.read("{\\rtf1 The tide}");
    test.document.makeWindowControllers();
    EXPECT_EQ(test.window.input->plainText(), "{\\rtf1 The tide}");
}

TEST(Document, emptiesTheInputPaneForRichTextThatNoReaderTakes) {
    for (const std::string_view bytes : {"%PDF-1.7 text", "PK\x03\x04 cut short", "\x01\x02\xFF\xFE\x03"}) {
        DocumentUnderTest test;
        test.read(std::string(bytes), "public.rtf");
        test.document.makeWindowControllers();
        EXPECT_EQ(test.window.input->content, AttributedText());
        EXPECT_EQ(test.window.input->replacements, 1);
    }
}

TEST(Document, savesTheCharactersOfTheOutputPaneAsPlainText) {
    DocumentUnderTest test;
    test.document.makeWindowControllers();
    test.window.output->content = AttributedText("The tide\r\n\u00E9\U0001F600", Colour::blue);
    EXPECT_EQ(test.document.dataOfType("public.plain-text").value(), "The tide\r\n\u00E9\U0001F600");
}

TEST(Document, savesAnEmptyOutputPaneAsNoBytesWhichCannotBeReadAgain) {
    DocumentUnderTest test;
    test.document.makeWindowControllers();
    const auto bytes = test.document.dataOfType("public.plain-text");
    EXPECT_EQ(bytes.value(), "");
    EXPECT_EQ(test.document.readFromData(bytes.value(), "public.plain-text").fault(), documentError());
}

TEST(Document, savesNoBytesForCharactersThatCannotBeEncoded) {
    DocumentUnderTest test;
    test.document.makeWindowControllers();
    test.window.output->content = AttributedText("half a surrogate: \xED\xA0\xBD", Colour::text);
    EXPECT_EQ(test.document.dataOfType("public.plain-text").value(), "");
}

TEST(Document, savesEveryOtherTypeAsRtfWithTheColoursOfTheOutputPane) {
    for (const std::string_view type : {"public.rtf", "Public.plain-text", "org.openxmlformats.docx", ""}) {
        DocumentUnderTest test;
        test.read("what was opened");
        test.document.makeWindowControllers();
        AttributedText shown("A \U0001F600 ", Colour::text);
        shown.append("tide", Colour::blue);
        shown.append("\n", Colour::text);
        test.window.output->content = shown;
        const auto rtf = test.document.dataOfType(type);
        ASSERT_TRUE(rtf.succeeded()) << type;
        EXPECT_TRUE(rtf.value().starts_with("{\\rtf1"));
        EXPECT_EQ(document::readRtf(rtf.value()).value(), shown);
    }
}

TEST(Document, savesByTheTypeThatIsAskedForAndNotByItsOwn) {
    DocumentUnderTest test;
    test.read("{\\rtf1 opened}", "public.rtf");
    test.document.makeWindowControllers();
    test.window.output->content = AttributedText("shown", Colour::red);
    EXPECT_EQ(test.document.dataOfType("public.plain-text").value(), "shown");
}

TEST(Document, failsToSaveAWindowWhoseContentIsNoAnalysis) {
    DocumentUnderTest test;
    for (const std::shared_ptr<ViewControllerBase>& content :
         {std::shared_ptr<ViewControllerBase>(), std::make_shared<ViewControllerBase>()}) {
        Document document{test.storyboard};
        test.storyboard->scenes["Document Window Controller"] =
            std::make_shared<PlainWindowController>(content);
        document.makeWindowControllers();
        for (const std::string_view type : {"public.plain-text", "public.rtf"})
            EXPECT_EQ(document.dataOfType(type).fault(), (DocumentError{"NSOSStatusErrorDomain", -4}));
    }
}

TEST(DocumentDeathTest, stopsTheProgramWhenADocumentWithoutAWindowIsSaved) {
    Document document{std::make_shared<PlainStoryboard>()};
    EXPECT_DEATH((void)document.dataOfType("public.plain-text"), "without a window");
}

TEST(DocumentDeathTest, stopsTheProgramWhenTheOutputPaneIsMissingAtSaving) {
    DocumentUnderTest test;
    test.document.makeWindowControllers();
    test.window.controller->outtextTextbox = nullptr;
    EXPECT_DEATH((void)test.document.dataOfType("public.plain-text"), "not connected");
    EXPECT_DEATH((void)test.document.dataOfType("public.rtf"), "not connected");
}

TEST(DocumentDeathTest, stopsTheProgramWhenTheOutputPaneHasNoTextStorageAtSavingAsRichText) {
    DocumentUnderTest test;
    test.document.makeWindowControllers();
    test.window.output->hasStorage = false;
    EXPECT_DEATH((void)test.document.dataOfType("public.rtf"), "no text storage");
    EXPECT_TRUE(test.document.dataOfType("public.plain-text").succeeded());
}

TEST(Document, doesNotRefreshTheInputPaneWhenItIsReadAgain) {
    DocumentUnderTest test;
    test.read("first");
    test.document.makeWindowControllers();
    test.read("second");
    EXPECT_EQ(test.document.theData, "second");
    EXPECT_EQ(test.window.input->plainText(), "first");
}

TEST(Document, quietlyShowsAWindowWhoseContentIsNoAnalysis) {
    DocumentUnderTest test;
    for (const std::shared_ptr<ViewControllerBase>& content :
         {std::shared_ptr<ViewControllerBase>(), std::make_shared<ViewControllerBase>()}) {
        Document document{test.storyboard};
        test.storyboard->scenes["Document Window Controller"] =
            std::make_shared<PlainWindowController>(content);
        document.makeWindowControllers();
        EXPECT_EQ(document.windowControllers.size(), 1U);
    }
}

TEST(DocumentDeathTest, stopsTheProgramWithoutAFileLocationAtReading) {
    Document document{std::make_shared<PlainStoryboard>()};
    EXPECT_DEATH((void)document.readFromData("text", "public.plain-text"), "absent");
}

TEST(DocumentDeathTest, stopsTheProgramWhenTheSceneIsMissingOrNoWindowController) {
    DocumentUnderTest test;
    test.storyboard->scenes["Document Window Controller"] = std::make_shared<SceneController>();
    EXPECT_DEATH(test.document.makeWindowControllers(), "no window controller");
    test.storyboard->scenes.clear();
    EXPECT_DEATH(test.document.makeWindowControllers(), "no window controller");
}

} // namespace
} // namespace lexiform
