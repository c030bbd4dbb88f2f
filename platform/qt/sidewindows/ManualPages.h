#pragma once

#include "platform/qt/sidewindows/ManualLink.h"

#include <QPdfDocument>
#include <QPdfSearchModel>
#include <QPdfView>
#include <QPointer>
#include <QTransform>

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
    /// Where a place of a page that exists, in points, stands in the viewport at present.
    [[nodiscard]] QRectF shownPlace(int page, const QRectF& place) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// What decides where the pages lie.
    struct Setting {
        QPointer<QPdfDocument> document;
        int pageCount = 0;
        ZoomMode zoomMode = ZoomMode::Custom;
        qreal zoomFactor = 0;
        int width = 0;

        bool operator==(const Setting&) const = default;
    };
    /// A page among all others, in pixels that do not scroll.
    struct Sheet {
        QRect box;
        QTransform fromPoints;
    };

    [[nodiscard]] const QList<Sheet>& sheets() const;
    [[nodiscard]] QList<Sheet> layOut() const;
    [[nodiscard]] QSize sizeOf(const QSizeF& points) const;
    [[nodiscard]] qsizetype firstEndingBelow(qreal height) const;
    [[nodiscard]] QPoint scrolled() const;
    [[nodiscard]] const ManualLink* linkAt(QPointF point) const;

    const qreal pixelsInPoint_;
    mutable Setting setting_; ///< of the sheets as they are kept
    mutable QList<Sheet> sheets_;
    QList<ManualLink> links_;
    const QPdfSearchModel* search_ = nullptr;
    int current_ = -1;
};

} // namespace lexiform::qt
