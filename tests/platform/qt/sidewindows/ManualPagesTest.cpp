#include "platform/qt/sidewindows/ManualPages.h"

#include <QApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

constexpr int pageCount = 30;

/// As many blank pages A4 as a long manual has: what is wrong by a pixel a page shows on its last one.
class ManualPagesTest : public testing::Test {
protected:
    ManualPagesTest() {
        write(path, QPageSize::A4);
        document.load(path);
        pages.setPalette(Qt::red);
        pages.resize(700, 500);
        pages.setDocument(&document);
        pages.show();
        QApplication::processEvents();
    }

    static void write(const QString& path, QPageSize::PageSizeId size) {
        QPdfWriter writer(path);
        writer.setPageSize(QPageSize(size));
        QPainter painter(&writer);
        for (int page = 1; page < pageCount; ++page)
            writer.newPage();
    }

    [[nodiscard]] QRectF shown(int page) const {
        return pages.shownPlace(page, {QPointF(), document.pagePointSize(page)});
    }

    [[nodiscard]] static bool isPage(const QImage& image, QPoint point) {
        return image.pixelColor(point) == QColor(Qt::white);
    }

    void expectPagesWhereTheyArePainted() {
        const QScrollBar& bar = *pages.verticalScrollBar();
        EXPECT_NEAR(bar.value() + shown(pageCount - 1).bottom() + 2 * ManualPages::pageMargin,
                    bar.maximum() + bar.pageStep(), 0.01);
        for (const int page : {0, 1, 14, pageCount - 1})
            expectPageWhereItIsPainted(page);
    }

    // On a row and on a column through what can be seen of the page, its white starts at its edges.
    void expectPageWhereItIsPainted(int page) {
        pages.goTo(page, 0);
        pages.horizontalScrollBar()->setValue(0);
        const QPoint corner = shown(page).topLeft().toPoint();
        const QImage image = pages.viewport()->grab().toImage();
        ASSERT_TRUE(image.rect().contains(corner)) << page;
        const QPoint inside = corner + QPoint(10, 10);
        EXPECT_TRUE(isPage(image, {inside.x(), corner.y()})) << page;
        EXPECT_FALSE(isPage(image, {inside.x(), corner.y() - 1})) << page;
        EXPECT_TRUE(isPage(image, {corner.x(), inside.y()})) << page;
        EXPECT_FALSE(isPage(image, {corner.x() - 1, inside.y()})) << page;
    }

    const QTemporaryDir folder;
    const QString path = folder.filePath("manual.pdf");
    QPdfDocument document;
    ManualPages pages;
};

TEST_F(ManualPagesTest, knowsWhereItsPagesArePaintedAtAnyZoom) {
    pages.setZoomMode(QPdfView::ZoomMode::Custom);
    for (const qreal zoom : {0.25, 0.3, 0.6944, 0.83, 1.0, 1.2, 1.44, 2.3, 5.0}) {
        SCOPED_TRACE(zoom);
        pages.setZoomFactor(zoom);
        expectPagesWhereTheyArePainted();
    }
}

TEST_F(ManualPagesTest, knowsWhereItsPagesArePaintedAtAnyWidth) {
    pages.setZoomMode(QPdfView::ZoomMode::FitToWidth);
    for (const int width : {200, 333, 500, 701, 852, 1000, 1279}) {
        SCOPED_TRACE(width);
        pages.resize(width, 500);
        QApplication::processEvents();
        expectPagesWhereTheyArePainted();
    }
}

TEST_F(ManualPagesTest, knowsWhereThePagesOfAnotherDocumentAre) {
    const QString other = folder.filePath("other.pdf");
    write(other, QPageSize::A5);
    const qreal before = shown(1).top();
    QPdfDocument another;
    another.load(other);
    pages.setDocument(&another);
    EXPECT_LT(pages.shownPlace(1, {}).top(), before - 100);
    expectPageWhereItIsPainted(pageCount - 1);
    pages.setDocument(nullptr);
    EXPECT_EQ(pages.pageShown(), 0);
}

TEST_F(ManualPagesTest, tellsTheLastPageOnceItIsReached) {
    for (int page = 0; page < pageCount; ++page) {
        pages.goTo(page, 0);
        EXPECT_EQ(pages.pageShown(), page);
    }
}

TEST_F(ManualPagesTest, pointsOnlyAtLinksOfThePageUnderThePointer) {
    pages.setLinks({{.page = 1, .place = {50, 100, 90, 30}, .targetPage = 9, .targetTop = 0}});
    const auto handOn = [this](int page) {
        pages.goTo(page, 0);
        QTest::mouseMove(pages.viewport(), {1, 1}); // the pointer moves only to where it is not
        QTest::mouseMove(pages.viewport(), pages.shownPlace(page, {90, 110, 0, 0}).topLeft().toPoint());
        return pages.viewport()->cursor().shape() == Qt::PointingHandCursor;
    };
    EXPECT_FALSE(handOn(0));
    EXPECT_TRUE(handOn(1));
    EXPECT_FALSE(handOn(2));
}

} // namespace
} // namespace lexiform::qt
