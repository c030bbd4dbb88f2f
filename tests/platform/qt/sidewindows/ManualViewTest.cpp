#include "platform/qt/sidewindows/ManualView.h"

#include "platform/qt/sidewindows/QtPdfDocument.h"
#include "platform/qt/theme/Appearance.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace lexiform::qt {
namespace {

/// A manual of three pages, each with its number in words at its top.
class ManualViewTest : public testing::Test {
protected:
    ManualViewTest() {
        QPdfWriter writer(path);
        writer.setPageSize(QPageSize(QPageSize::A5));
        writer.setPageMargins({});
        writer.setResolution(72); // a unit is a point
        QPainter painter(&writer);
        painter.setFont(QFont(QStringLiteral("Noto Sans"), 20));
        for (const char* words : {"page one", "page two", "page three"}) {
            if (*(words + 5) != 'o') writer.newPage();
            painter.drawText(100, 100, QString::fromLatin1(words));
        }
    }

    void writeLinks(const QByteArray& lines) const {
        QFile file(folder.filePath("manual.links"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(lines);
    }

    void open() {
        document = std::dynamic_pointer_cast<QtPdfDocument>(QtPdfDocument::read(path.toStdString()));
        ASSERT_NE(document, nullptr);
        view.resize(500, 400);
        view.setFitted(true);
        view.setDocument(&document->document(), document->links());
        view.show();
        QApplication::processEvents();
    }

    // The pixel of the viewport on which a place of a page stands.
    [[nodiscard]] QPoint pointOn(int page, QPointF place) const {
        return view.pages()->shownPlace(page, {place, QSizeF()}).topLeft().toPoint();
    }
    void click(QPoint point) { QTest::mouseClick(view.pages()->viewport(), Qt::LeftButton, {}, point); }
    [[nodiscard]] int pageShown() const { return view.pages()->pageShown(); }

    bool find(const QString& words, int places) {
        auto* field = view.findChild<QLineEdit*>();
        auto* search = view.findChild<QPdfSearchModel*>();
        field->setText(words);
        return QTest::qWaitFor([&] { return search->rowCount({}) == places; });
    }
    QImage shown() { return view.pages()->viewport()->grab().toImage(); }
    QColor paintedAt(QPoint point) { return shown().pixelColor(point); }
    int pixelsOf(const QColor& colour) {
        const QImage image = shown();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == colour ? 1 : 0;
        return count;
    }

    const QTemporaryDir folder;
    const QString path = folder.filePath("manual.pdf");
    std::shared_ptr<QtPdfDocument> document;
    ManualView view;
};

TEST_F(ManualViewTest, reachesFromItsFirstPageToItsLast) {
    open();
    const QRectF last = view.pages()->shownPlace(2, {QPointF(), document->document().pagePointSize(2)});
    const QScrollBar& bar = *view.pages()->verticalScrollBar();
    // Behind the last page, too, there is the gap between two pages.
    EXPECT_NEAR(last.bottom() + 2 * ManualPages::pageMargin, bar.maximum() + bar.pageStep(), 3);
    EXPECT_NEAR(last.left(), ManualPages::pageMargin, 1);
    EXPECT_NEAR(last.right(), view.pages()->viewport()->width() - ManualPages::pageMargin, 1);
}

TEST_F(ManualViewTest, goesWhereALinkLeads) {
    writeLinks("0\t100\t80\t90\t30\t2\t50\n");
    open();
    click(pointOn(0, {140, 90}));
    EXPECT_EQ(pageShown(), 2);
    EXPECT_NEAR(pointOn(2, {0, 50}).y(), ManualPages::pageMargin, 2);
}

TEST_F(ManualViewTest, tellsThePageInTheMiddleWhereverItIs) {
    open();
    QScrollBar& bar = *view.pages()->verticalScrollBar();
    int before = 0;
    for (int value = 0; value <= bar.maximum(); ++value) {
        bar.setValue(value);
        EXPECT_GE(pageShown(), before) << value;
        before = pageShown();
    }
    EXPECT_EQ(before, 2);
    EXPECT_EQ(view.findChild<QLabel*>()->text(), "3 of 3");
}

TEST_F(ManualViewTest, turnsItsPages) {
    open();
    QStringList shown;
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left}) {
        QTest::keyClick(&view, key, Qt::AltModifier);
        shown.append(view.findChild<QLabel*>()->text());
    }
    EXPECT_EQ(shown, (QStringList{"2 of 3", "3 of 3", "3 of 3", "2 of 3"}));
}

TEST_F(ManualViewTest, staysWhereNoLinkIsClicked) {
    writeLinks("0\t100\t80\t90\t30\t2\t50\n");
    open();
    click(pointOn(0, {140, 120}));
    EXPECT_EQ(pageShown(), 0);
}

TEST_F(ManualViewTest, pointsAtALinkWithAHand) {
    writeLinks("0\t100\t80\t90\t30\t2\t50\n");
    open();
    QTest::mouseMove(view.pages()->viewport(), pointOn(0, {140, 90}));
    EXPECT_EQ(view.pages()->viewport()->cursor().shape(), Qt::PointingHandCursor);
    QTest::mouseMove(view.pages()->viewport(), pointOn(0, {140, 120}));
    EXPECT_EQ(view.pages()->viewport()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ManualViewTest, goesWhereALinkLeadsAtAnyZoom) {
    writeLinks("0\t100\t80\t90\t30\t1\t0\n");
    open();
    view.pages()->setZoomMode(QPdfView::ZoomMode::Custom);
    view.pages()->setZoomFactor(2.5);
    view.pages()->horizontalScrollBar()->setValue(60);
    click(pointOn(0, {140, 90}));
    EXPECT_NEAR(pointOn(1, {0, 0}).y(), ManualPages::pageMargin, 2);
}

TEST_F(ManualViewTest, passesOverLinksThatMakeNoSense) {
    writeLinks("0\t0\t0\t400\t400\t7\t50\n-1\t0\t0\t400\t400\t1\t50\nnonsense\n0\t1\t2\n\n");
    open();
    click(pointOn(0, {140, 90}));
    EXPECT_EQ(pageShown(), 0);
}

TEST_F(ManualViewTest, marksWhatIsFound) {
    open();
    ASSERT_TRUE(find("page", 3));
    const QColor mark = surfacesOf(Appearance::light).selection;
    EXPECT_GT(pixelsOf(mark), 100);
    EXPECT_EQ(paintedAt(pointOn(0, {102, 140})), QColor(Qt::white));
    view.findChild<QLineEdit*>()->clear();
    EXPECT_EQ(pixelsOf(mark), 0);
}

TEST_F(ManualViewTest, marksThePlaceThatItGoesToMore) {
    open();
    ASSERT_TRUE(find("three", 1));
    ASSERT_TRUE(view.findNext());
    EXPECT_EQ(pageShown(), 2);
    EXPECT_GT(pixelsOf(surfacesOf(Appearance::dark).focus), 100);
    EXPECT_EQ(pixelsOf(surfacesOf(Appearance::light).selection), 0);
}

TEST_F(ManualViewTest, goesToAPlaceThatIsFoundAfterItWasAskedFor) {
    open();
    auto* const wanted = view.findChild<QLineEdit*>();
    QTest::keyClicks(wanted, "three");
    QTest::keyClick(wanted, Qt::Key_Return);
    EXPECT_EQ(pageShown(), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return pageShown() == 2; }));
}

TEST_F(ManualViewTest, goesNowhereInADocumentThatComesAfterAPlaceWasAskedFor) {
    open();
    const auto another = std::dynamic_pointer_cast<QtPdfDocument>(QtPdfDocument::read(path.toStdString()));
    ASSERT_NE(another, nullptr);
    auto* const wanted = view.findChild<QLineEdit*>();
    QTest::keyClicks(wanted, "three");
    QTest::keyClick(wanted, Qt::Key_Return);
    view.setDocument(&another->document());
    auto* const search = view.findChild<QPdfSearchModel*>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return search->rowCount({}) == 1; }));
    EXPECT_EQ(pageShown(), 0);
    view.setDocument(nullptr);
}

TEST_F(ManualViewTest, marksNoPlaceMoreInADocumentThatComesLater) {
    open();
    ASSERT_TRUE(find("one", 1));
    ASSERT_TRUE(view.findNext());
    ASSERT_GT(pixelsOf(surfacesOf(Appearance::dark).focus), 100);
    const auto another = std::dynamic_pointer_cast<QtPdfDocument>(QtPdfDocument::read(path.toStdString()));
    ASSERT_NE(another, nullptr);
    view.setDocument(&another->document());
    auto* const search = view.findChild<QPdfSearchModel*>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return search->rowCount({}) == 1; }));
    EXPECT_EQ(pixelsOf(surfacesOf(Appearance::dark).focus), 0);
    EXPECT_GT(pixelsOf(surfacesOf(Appearance::light).selection), 100);
    view.setDocument(nullptr);
}

} // namespace
} // namespace lexiform::qt
