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

ManualPages::ManualPages(QWidget* parent)
    : QPdfView(parent),
      pixelsInPoint_(QGuiApplication::primaryScreen()->logicalDotsPerInch() / pointsInInch) {
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
    const qreal middle = verticalScrollBar()->value() + viewport()->height() / 2.0;
    const qsizetype last = std::max<qsizetype>(sheets().size() - 1, 0);
    return static_cast<int>(std::min(firstEndingBelow(middle - pageMargin / 2.0), last));
}

void ManualPages::goTo(int page, qreal top) {
    const qreal shown = shownPlace(page, {0, top, 0, 0}).top();
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(shown) - pageMargin);
}

QRectF ManualPages::shownPlace(int page, const QRectF& place) const {
    const QTransform& fromPoints = sheets().at(page).fromPoints;
    const QRectF onSheets(fromPoints.map(place.topLeft()), fromPoints.map(place.bottomRight()));
    return onSheets.translated(-scrolled());
}

// Kept, since a page tells its size only behind a lock. Compared rather than told of: the view moves its
// scroll bars before it says that its zoom has changed.
const QList<ManualPages::Sheet>& ManualPages::sheets() const {
    const Setting now{.document = document(),
                      .pageCount = document() != nullptr ? document()->pageCount() : 0,
                      .zoomMode = zoomMode(),
                      .zoomFactor = zoomFactor(),
                      .width = viewport()->width()};
    if (now != setting_) {
        setting_ = now;
        sheets_ = layOut();
    }
    return sheets_;
}

// The view tells nobody how it lays out its pages.
QList<ManualPages::Sheet> ManualPages::layOut() const {
    QList<Sheet> sheets;
    int room = setting_.width;
    int top = pageMargin;
    for (int page = 0; page < setting_.pageCount; ++page) {
        const QSizeF points = document()->pagePointSize(page);
        const QSize size = sizeOf(points);
        sheets.append({.box = {QPoint(0, top), size},
                       .fromPoints = QTransform::fromScale(size.width() / points.width(),
                                                           size.height() / points.height())});
        room = std::max(room, size.width() + 2 * pageMargin);
        top += size.height() + pageMargin;
    }
    for (Sheet& sheet : sheets) {
        sheet.box.moveLeft((room - sheet.box.width()) / 2);
        sheet.fromPoints *= QTransform::fromTranslate(sheet.box.left(), sheet.box.top());
    }
    return sheets;
}

// Rounded as often as the view does it: what is left out adds up from page to page.
QSize ManualPages::sizeOf(const QSizeF& points) const {
    if (setting_.zoomMode == ZoomMode::Custom)
        return (points * pixelsInPoint_ * setting_.zoomFactor).toSize();
    const QSize plain = (points * pixelsInPoint_).toSize();
    return plain * (static_cast<qreal>(setting_.width - 2 * pageMargin) / plain.width());
}

// The number of the pages without any.
qsizetype ManualPages::firstEndingBelow(qreal height) const {
    const QList<Sheet>& all = sheets();
    const auto isAbove = [height](const Sheet& sheet) { return sheet.box.y() + sheet.box.height() < height; };
    return std::partition_point(all.begin(), all.end(), isAbove) - all.begin();
}

QPoint ManualPages::scrolled() const {
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

// Pages are white in both appearances. Multiplied, a mark leaves black letters black.
void ManualPages::paintEvent(QPaintEvent* event) {
    QPdfView::paintEvent(event);
    if (search_ == nullptr || sheets().isEmpty()) return;
    QPainter painter(viewport());
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    const QRect painted = event->rect().translated(scrolled());
    for (int i = 0; i < search_->rowCount({}); ++i) {
        const QPdfLink result = search_->resultAtIndex(i);
        if (!sheets().value(result.page()).box.intersects(painted)) continue;
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
    const qsizetype pages = sheets().size();
    const qsizetype page = firstEndingBelow(point.y() + scrolled().y());
    if (page == pages) return nullptr;
    const QPointF onPage = sheets().at(page).fromPoints.inverted().map(point + scrolled());
    const auto found = std::find_if(links_.begin(), links_.end(), [&](const ManualLink& link) {
        return link.page == page && link.place.contains(onPage) && link.targetPage >= 0 &&
               link.targetPage < pages;
    });
    return found == links_.end() ? nullptr : &*found;
}

} // namespace lexiform::qt
