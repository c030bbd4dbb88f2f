#pragma once

#include "platform/qt/sidewindows/ManualLink.h"

#include <QPdfSearchModel>
#include <QPdfView>

namespace lexiform::qt {

/// The pages of the manual, one below the other, with links that can be clicked and marks where a search
/// has found something: Qt's own view has neither.
class ManualPages : public QPdfView {
    Q_OBJECT

public:
    /// What is free around each page, in pixels.
    static constexpr int pageMargin = 24;

    explicit ManualPages(QWidget* parent = nullptr);

    void setLinks(const QList<ManualLink>& links) { links_ = links; }
    /// Marks what `search` finds; it must outlive the pages.
    void markFound(const QPdfSearchModel& search);
    /// The one result of the search that is marked more than the others; -1 for none.
    void setCurrentResult(int index);

    /// The page in the middle of the view; 0 without any.
    [[nodiscard]] int pageShown() const;
    /// Scrolls a place of a page, in points from its top, to the top of the view, as far as that goes.
    void goTo(int page, qreal top);
    /// Where a place of a page stands in the viewport at present.
    [[nodiscard]] QRectF shownPlace(int page, const QRectF& place) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] qreal scaleOf(int page) const;
    [[nodiscard]] QRectF boxOf(int page) const;
    [[nodiscard]] const ManualLink* linkAt(QPointF point) const;

    QList<ManualLink> links_;
    const QPdfSearchModel* search_ = nullptr;
    int current_ = -1;
};

} // namespace lexiform::qt
