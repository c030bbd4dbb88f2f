#include "platform/qt/sidewindows/ManualPages.h"

#include "platform/qt/theme/Appearance.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace lexiform::qt {

namespace {

constexpr qreal pointsInInch = 72;

} // namespace

ManualPages::ManualPages(QWidget* parent) : QPdfView(parent) {
    setPageMode(PageMode::MultiPage);
    setDocumentMargins({pageMargin, pageMargin, pageMargin, pageMargin});
    setPageSpacing(pageMargin);
    setFrameShape(QFrame::NoFrame);
    viewport()->setMouseTracking(true);
}

void ManualPages::markFound(const QPdfSearchModel& search) {
    search_ = &search;
    const auto repaint = [this] { viewport()->update(); };
    connect(search_, &QAbstractItemModel::rowsInserted, this, repaint);
    connect(search_, &QAbstractItemModel::modelReset, this, repaint);
    connect(search_, &QPdfSearchModel::searchStringChanged, this, repaint);
}

void ManualPages::setCurrentResult(int index) {
    current_ = index;
    viewport()->update();
}

// Between two pages, the view itself tells the first of all.
int ManualPages::pageShown() const {
    const int last = document() != nullptr ? document()->pageCount() - 1 : 0;
    const qreal middle = verticalScrollBar()->value() + viewport()->height() / 2.0;
    int page = 0;
    while (page < last && boxOf(page).bottom() + pageMargin / 2.0 < middle)
        ++page;
    return page;
}

void ManualPages::goTo(int page, qreal top) {
    const qreal shown = shownPlace(page, {0, top, 0, 0}).top();
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(shown) - pageMargin);
}

QRectF ManualPages::shownPlace(int page, const QRectF& place) const {
    const qreal scale = scaleOf(page);
    const QPointF corner =
        boxOf(page).topLeft() - QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value());
    return {corner + place.topLeft() * scale, place.size() * scale};
}

// The view tells nobody how it lays out its pages.
qreal ManualPages::scaleOf(int page) const {
    const qreal resolution = QGuiApplication::primaryScreen()->logicalDotsPerInch() / pointsInInch;
    if (zoomMode() == ZoomMode::Custom) return resolution * zoomFactor();
    return (viewport()->width() - 2 * pageMargin) / document()->pagePointSize(page).width();
}

QRectF ManualPages::boxOf(int page) const {
    qreal top = pageMargin;
    qreal widest = 0;
    for (int each = 0; each < document()->pageCount(); ++each) {
        const QSizeF size = document()->pagePointSize(each) * scaleOf(each);
        widest = std::max(widest, size.width());
        if (each < page) top += static_cast<int>(size.height()) + pageMargin;
    }
    const QSizeF size = document()->pagePointSize(page) * scaleOf(page);
    const qreal room = std::max(widest + 2 * pageMargin, static_cast<qreal>(viewport()->width()));
    return {QPointF((room - size.width()) / 2, top), size};
}

// Pages are white in both appearances. Multiplied, a mark leaves black letters black.
void ManualPages::paintEvent(QPaintEvent* event) {
    QPdfView::paintEvent(event);
    if (search_ == nullptr || document() == nullptr) return;
    QPainter painter(viewport());
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    for (int i = 0; i < search_->rowCount({}); ++i) {
        const QPdfLink result = search_->resultAtIndex(i);
        const QColor mark =
            i == current_ ? surfacesOf(Appearance::dark).focus : surfacesOf(Appearance::light).selection;
        for (const QRectF& place : result.rectangles()) {
            const QRectF shown = shownPlace(result.page(), place);
            if (shown.intersects(event->rect())) painter.fillRect(shown.adjusted(-1, -1, 1, 1), mark);
        }
    }
}

void ManualPages::mouseMoveEvent(QMouseEvent* event) {
    QPdfView::mouseMoveEvent(event);
    viewport()->setCursor(linkAt(event->position()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void ManualPages::mouseReleaseEvent(QMouseEvent* event) {
    QPdfView::mouseReleaseEvent(event);
    const ManualLink* const link = linkAt(event->position());
    if (event->button() == Qt::LeftButton && link != nullptr) goTo(link->targetPage, link->targetTop);
}

const ManualLink* ManualPages::linkAt(QPointF point) const {
    const int pages = document() != nullptr ? document()->pageCount() : 0;
    const auto found = std::find_if(links_.begin(), links_.end(), [&](const ManualLink& link) {
        const bool exists =
            std::min(link.page, link.targetPage) >= 0 && std::max(link.page, link.targetPage) < pages;
        return exists && shownPlace(link.page, link.place).contains(point);
    });
    return found == links_.end() ? nullptr : &*found;
}

} // namespace lexiform::qt
