#include "document/Document.h"

#include "tests/support/WindowUnderTest.h"

#include <gtest/gtest.h>

#include <map>

namespace lexiform {
namespace {

class PlainWindowController : public WindowController {
public:
    explicit PlainWindowController(std::shared_ptr<ViewControllerBase> content)
        : content_(std::move(content)) {}

    [[nodiscard]] std::shared_ptr<ViewControllerBase> contentViewController() const override {
        return content_;
    }

private:
    std::shared_ptr<ViewControllerBase> content_;
};

/// Gives the scenes that a test put into it.
class PlainStoryboard : public Storyboard {
public:
    [[nodiscard]] std::shared_ptr<SceneController>
    instantiateController(std::string_view identifier) override {
        const auto scene = scenes.find(identifier);
        return scene == scenes.end() ? nullptr : scene->second;
    }

    std::map<std::string, std::shared_ptr<SceneController>, std::less<>> scenes;
};

/// A document whose scene is a window with an input pane that already holds a text.
struct DocumentUnderTest {
    DocumentUnderTest() {
        storyboard->scenes["Document Window Controller"] =
            std::make_shared<PlainWindowController>(window.controller);
        document.fileURL = "/texts/harbour.txt";
    }

    void read(std::string bytes, std::string type = "public.plain-text") {
        ASSERT_TRUE(document.readFromData(std::move(bytes), std::move(type)).succeeded());
    }

    WindowUnderTest window{"as the window made it"};
    std::shared_ptr<PlainStoryboard> storyboard = std::make_shared<PlainStoryboard>();
    Document document{storyboard};
};

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

TEST(Document, emptiesTheInputPaneForATypeThatDiffersInAnyWay) {
    for (const std::string_view type :
         {"Public.plain-text", "public.utf8-plain-text", "public.plain-text "}) {
        DocumentUnderTest test;
        test.read("The tide", std::string(type));
        test.document.makeWindowControllers();
        EXPECT_EQ(test.window.input->plainText(), "") << type;
    }
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
