#include "analysis/ViewController.h"

#include "tests/support/WindowUnderTest.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

/// A window with a list, and the panel that its save command has opened.
struct ExportUnderTest : WindowUnderTest {
    explicit ExportUnderTest(const std::string& list = "\nTotal words classified = 0\n") {
        concordance->content = {list, Colour::text};
        output->content = {"the end.", Colour::gray};
    }

    ~ExportUnderTest() {
        // An open panel keeps itself alive until it is answered.
        for (const auto& panel : *panels)
            if (!leavesPanelsOpen) panel->completion = nullptr;
    }
    ExportUnderTest(const ExportUnderTest&) = delete;
    ExportUnderTest& operator=(const ExportUnderTest&) = delete;

    bool leavesPanelsOpen = false;

    PlainSavePanel& save() {
        controller->saveConcButton();
        return *panels->back();
    }
};

TEST(ConcordanceExport, proposesTheTitleOfTheWindow) {
    ExportUnderTest test;
    test.view->ownWindow.ownTitle = "story.txt";
    EXPECT_EQ(test.save().name, "story.txt-wordlist.text");
}

TEST(ConcordanceExport, proposesUntitledForAWindowWithoutATitle) {
    ExportUnderTest test;
    test.view->ownWindow.ownTitle = "";
    EXPECT_EQ(test.save().name, "Untitled-wordlist.text");
}

TEST(ConcordanceExport, letsThePersonMakeFoldersAndUseTwoExtensions) {
    ExportUnderTest test;
    const PlainSavePanel& panel = test.save();
    EXPECT_TRUE(panel.canCreateDirectories);
    EXPECT_EQ(panel.allowedFileTypes, (std::vector<std::string>{"text", "txt"}));
}

TEST(ConcordanceExport, writesTheListByteForByte) {
    ExportUnderTest test{"\nNouns:\nété (1)\n\nTotal Nouns = 1\n\nTotal words classified = 1\n"};
    test.save().confirm("/lists/a.text");
    EXPECT_EQ(test.files->files.at("/lists/a.text"),
              "\nNouns:\nété (1)\n\nTotal Nouns = 1\n\nTotal words classified = 1\n");
    EXPECT_EQ(test.output->plainText(), "the end.");
}

TEST(ConcordanceExport, writesNothingIntoTheFileOfAnEmptyPane) {
    ExportUnderTest test{""};
    test.save().confirm("/lists/a.text");
    EXPECT_EQ(test.files->files.at("/lists/a.text"), "");
}

TEST(ConcordanceExport, writesTheListAsItWasWhenThePanelOpened) {
    ExportUnderTest test{"before"};
    PlainSavePanel& panel = test.save();
    test.controller->listConcButton();
    panel.confirm("/lists/a.text");
    EXPECT_EQ(test.files->files.at("/lists/a.text"), "before");
}

TEST(ConcordanceExport, writesNothingAndSaysNothingWhenCancelled) {
    ExportUnderTest test;
    test.save().cancel();
    EXPECT_TRUE(test.files->files.empty());
    EXPECT_EQ(test.output->plainText(), "the end.");
}

TEST(ConcordanceExport, writesNothingWithoutAChosenLocation) {
    ExportUnderTest test;
    test.save().confirm(std::nullopt);
    EXPECT_TRUE(test.files->files.empty());
    EXPECT_EQ(test.output->plainText(), "the end.");
}

TEST(ConcordanceExport, runsTheReasonOfAFailureOnAtTheEndOfTheOutputPane) {
    ExportUnderTest test;
    test.files->failure = "No permission.";
    const std::string list = test.concordance->plainText();
    test.save().confirm("/lists/a.text");
    AttributedText expected("the end.", Colour::gray);
    expected.append("No permission.", Colour::text);
    EXPECT_EQ(test.output->content, expected);
    EXPECT_EQ(test.concordance->plainText(), list);
}

TEST(ConcordanceExport, writesEachOfTwoOpenPanelsItsOwnSnapshot) {
    ExportUnderTest test{"one"};
    PlainSavePanel& first = test.save();
    test.concordance->content = {"two", Colour::text};
    PlainSavePanel& second = test.save();
    second.confirm("/lists/2.text");
    first.confirm("/lists/1.text");
    EXPECT_EQ(test.files->files.at("/lists/1.text"), "one");
    EXPECT_EQ(test.files->files.at("/lists/2.text"), "two");
}

TEST(ConcordanceExport, stillWritesWhenTheWindowIsGone) {
    const auto files = std::make_shared<PlainFileWriter>();
    std::shared_ptr<PlainSavePanel> panel;
    std::weak_ptr<ViewController> controller;
    {
        ExportUnderTest test{"kept"};
        test.leavesPanelsOpen = true;
        test.save();
        panel = test.panels->back();
        controller = test.controller;
        // The window goes while its panel is open; its files are looked at through the double.
        panel->completion = [completion = panel->completion, writer = test.files, files](auto response) {
            completion(response);
            files->files = writer->files;
        };
    }
    EXPECT_FALSE(controller.expired());
    panel->confirm("/lists/a.text");
    EXPECT_EQ(files->files.at("/lists/a.text"), "kept");
    EXPECT_TRUE(controller.expired()); // nothing is kept alive once the person has answered
}

TEST(ConcordanceExport, saysNothingOfAFailureWhenTheOutputPaneIsGone) {
    ExportUnderTest test;
    test.files->failure = "No permission.";
    PlainSavePanel& panel = test.save();
    test.output->hasStorage = false; // as a pane of a closed window
    panel.confirm("/lists/a.text");
    EXPECT_EQ(test.output->plainText(), "the end.");
}

TEST(ConcordanceExport, doesNothingWithoutAConcordancePane) {
    ExportUnderTest test;
    test.controller->concordTextbox = nullptr;
    test.controller->saveConcButton();
    EXPECT_TRUE(test.panels->empty());
}

TEST(ConcordanceExportDeathTest, stopsTheProgramWhenTheViewIsInNoWindow) {
    const ExportUnderTest test;
    test.view->inWindow = false;
    EXPECT_DEATH(test.controller->saveConcButton(), "in no window");
}

TEST(ConcordanceExportDeathTest, stopsTheProgramWithoutSavePanels) {
    const auto controller =
        std::make_shared<ViewController>(scriptedTaggers({}, std::make_shared<TaggerCalls>()));
    const auto view = std::make_shared<PlainView>();
    controller->view = view;
    controller->concordTextbox = std::make_shared<PlainTextPane>();
    EXPECT_DEATH(controller->saveConcButton(), "not connected");
}

} // namespace
} // namespace lexiform
