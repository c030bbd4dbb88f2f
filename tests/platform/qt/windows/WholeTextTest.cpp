#include "linguistics/Engine.h"
#include "platform/linguistics/LinguisticTagger.h"
#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace lexiform::qt {
namespace {

/// A window with the real engine.
class WholeText : public testing::Test {
protected:
    WholeText() {
        const auto models = std::make_shared<const linguistics::ModelStore>(
            std::vector<std::filesystem::path>{LEXIFORM_MODELS_DIR});
        desktop.makeTagger = linguisticTaggers(std::make_shared<const linguistics::Engine>(models));
    }

    /// Opens a file with this text and gives what its output pane holds.
    std::string outputOf(const std::string& text) {
        const QString name = QString("text%1.txt").arg(desktop.documents.documents().size());
        desktop.documents.open({desktop.file(name, QByteArray::fromStdString(text))});
        const OutputTextEdit& output =
            *desktop.window(desktop.documents.documents().size() - 1).panes()->output();
        return output.text();
    }

    DesktopUnderTest desktop;
};

TEST_F(WholeText, comesOutOfTheWindowAsItWentIn) {
    for (const std::string text : {"One line without an end", "\n", "\r\n\r\n",
                                   "mixed\nends\r\nof\rlines\u2029and\u2028more\u0085here\n",
                                   "no-break\u00A0space, tab\t, zero\u200Bwidth, soft\u00ADhyphen",
                                   "👍🏽 👩‍👩‍👧 🇬🇧 ☕️ e\u0301 n\u0303\u0323 \u0301",
                                   "السلام عليكم يا بحر، كيف حالك؟ OK!\nשלום עולם",
                                   "港の朝は静かで、船はまだ眠っている。\n我们坐船去。", "สวัสดีชาวโลก ជំរាបសួរ",
                                   "\uFEFFwith a mark in front", "\uFFFC\uFDD0\uFFFF\U0010FFFF"})
        EXPECT_EQ(outputOf(text), text);
}

TEST_F(WholeText, comesOutOfTheWindowAsOneLineOfAMegabyte) {
    std::string text;
    while (text.size() < 1'000'000)
        text += "The tide came in, and Ada's 3 boats – all of them – left; ";
    EXPECT_EQ(outputOf(text), text);
}

} // namespace
} // namespace lexiform::qt
