#include "app/windows/HelpViewController.h"
#include "tests/support/ShellDoubles.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

class PlainPdfView : public PdfView {
public:
    void setDocument(std::shared_ptr<PdfDocument> document) override {
        documents.push_back(std::move(document));
    }
    void setAutoScales(bool scales) override { autoScales = scales; }

    std::vector<std::shared_ptr<PdfDocument>> documents;
    bool autoScales = false;
};

class Help : public testing::Test {
protected:
    Help() { controller.helpPDFView = view; }

    std::shared_ptr<PdfDocument> read(const std::string& path) {
        paths.push_back(path);
        return readable ? std::make_shared<PdfDocument>() : nullptr;
    }

    std::shared_ptr<PlainBundle> bundle = std::make_shared<PlainBundle>();
    std::shared_ptr<PlainPdfView> view = std::make_shared<PlainPdfView>();
    std::vector<std::string> paths;
    bool readable = true;
    HelpViewController controller{bundle, [this](const std::string& path) { return read(path); }};
};
using HelpDeathTest = Help;

TEST_F(Help, showsTheManualFittedToItsView) {
    bundle->resources = {{"LexiformHelp.pdf", "/share/LexiformHelp.pdf"}};
    controller.viewDidLoad();
    EXPECT_EQ(controller.thePDFDocument, nullptr);
    controller.viewDidAppear();
    EXPECT_EQ(paths, std::vector<std::string>{"/share/LexiformHelp.pdf"});
    ASSERT_TRUE(controller.thePDFDocument);
    EXPECT_EQ(view->documents, std::vector{controller.thePDFDocument});
    EXPECT_TRUE(view->autoScales);
}

TEST_F(Help, readsTheManualAnewAtEveryAppearance) {
    bundle->resources = {{"LexiformHelp.pdf", "/share/LexiformHelp.pdf"}};
    controller.viewDidAppear();
    controller.viewDidAppear();
    ASSERT_EQ(view->documents.size(), 2U);
    EXPECT_NE(view->documents[0], view->documents[1]);
    EXPECT_EQ(controller.thePDFDocument, view->documents[1]);
}

TEST_F(Help, leavesTheViewAsItWasWithoutAManual) {
    controller.viewDidAppear();
    EXPECT_TRUE(view->documents.empty());
    EXPECT_FALSE(view->autoScales);
}

TEST_F(Help, givesTheViewNoDocumentForAManualThatCannotBeRead) {
    bundle->resources = {{"LexiformHelp.pdf", "/share/LexiformHelp.pdf"}};
    readable = false;
    controller.viewDidAppear();
    EXPECT_EQ(view->documents, std::vector<std::shared_ptr<PdfDocument>>{nullptr});
    EXPECT_TRUE(view->autoScales);
}

TEST_F(HelpDeathTest, stopsWithoutItsView) {
    bundle->resources = {{"LexiformHelp.pdf", "/share/LexiformHelp.pdf"}};
    controller.helpPDFView = nullptr;
    EXPECT_DEATH(controller.viewDidAppear(), "not connected");
}

} // namespace
} // namespace lexiform
