#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QTest>

#include <gtest/gtest.h>

#include <cstddef>

#ifdef __SANITIZE_ADDRESS__
// Of the sanitizer's allocator; GCC brings no header for it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#else
#include <malloc.h>
#endif

namespace lexiform::qt {
namespace {

constexpr int pause = 20; // milliseconds for what is queued

// Opens a text, works with it as a person does, and closes its window.
void workOnce(DesktopUnderTest& desktop, const QString& path) {
    ASSERT_TRUE(desktop.documents.open({path}));
    DocumentWindow& window = desktop.window();
    ViewController& content = desktop.content();
    window.panes()->input()->insertPlainText("The cat ");
    content.multiParse();
    content.listConcButton();
    content.parseButton();
    emit window.fileMenu()->saveRequested();
    QTest::qWait(pause);
    window.close();
    QTest::qWait(pause);
    EXPECT_TRUE(desktop.documents.documents().empty());
    *desktop.tagger = {}; // it notes every text
}

std::size_t bytesInUse() {
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}

// Among the blocks that the allocator counts; what is larger than these it maps.
TEST(ClosedWindow, leavesNothingOfItsTextBehind) {
    constexpr int lines = 800;
    constexpr int rounds = 10;
    DesktopUnderTest desktop;
    const QString path =
        desktop.file("cat.txt", QByteArray("The cat sat. The cat sat. The cat sat.\n").repeated(lines));
    const auto textSize = static_cast<std::size_t>(QFileInfo(path).size());

    // Caches fill at first.
    for (int round = 0; round < rounds; ++round)
        workOnce(desktop, path);
    const std::size_t before = bytesInUse();
    for (int round = 0; round < rounds; ++round)
        workOnce(desktop, path);
    EXPECT_LT(bytesInUse(), before + rounds * textSize / 2);
}

} // namespace
} // namespace lexiform::qt
