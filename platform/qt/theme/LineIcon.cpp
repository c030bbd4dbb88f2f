#include "platform/qt/theme/LineIcon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <initializer_list>

namespace lexiform::qt {

namespace {

constexpr qreal gridUnits = 20;
constexpr qreal strokeUnits = 1.5;

void addLine(QPainterPath& path, QPointF from, QPointF to) {
    path.moveTo(from);
    path.lineTo(to);
}

// Three lines of words of different lengths.
QPainterPath parsePath() {
    QPainterPath path;
    for (const QLineF& word :
         {QLineF{3, 5, 8, 5}, QLineF{11.5, 5, 17, 5}, QLineF{3, 10, 5.5, 10}, QLineF{9, 10, 13, 10},
          QLineF{16, 10, 17, 10}, QLineF{3, 15, 10, 15}, QLineF{13.5, 15, 15, 15}})
        addLine(path, word.p1(), word.p2());
    return path;
}

// A sheet with words before a second sheet.
QPainterPath multiParsePath() {
    QPainterPath path;
    path.addRoundedRect(QRectF{2.75, 6.75, 10.5, 10.5}, 2, 2);
    addLine(path, {6, 10.25}, {7, 10.25});
    addLine(path, {9.75, 10.25}, {10, 10.25});
    addLine(path, {6, 13.75}, {8.5, 13.75});
    path.moveTo(6.75, 3.75);
    path.lineTo(14.25, 3.75);
    path.arcTo(QRectF{12.25, 3.75, 4, 4}, 90, -90);
    path.lineTo(16.25, 13.25);
    return path;
}

QPainterPath listPath() {
    QPainterPath path;
    for (const qreal y : {5.0, 10.0, 15.0}) {
        addLine(path, {3.5, y}, {3.6, y});
        addLine(path, {7.5, y}, {17, y});
    }
    return path;
}

// An arrow down into a tray.
QPainterPath savePath() {
    QPainterPath path;
    addLine(path, {10, 3}, {10, 12.5});
    path.moveTo(6.5, 9);
    path.lineTo(10, 12.5);
    path.lineTo(13.5, 9);
    path.moveTo(3, 13.75);
    path.lineTo(3, 15);
    path.arcTo(QRectF{3, 13, 4, 4}, 180, 90);
    path.lineTo(15, 17);
    path.arcTo(QRectF{13, 13, 4, 4}, 270, 90);
    path.lineTo(17, 13.75);
    return path;
}

QPainterPath pathOf(Glyph glyph) {
    switch (glyph) {
    case Glyph::parse:
        return parsePath();
    case Glyph::multiParse:
        return multiParsePath();
    case Glyph::list:
        return listPath();
    case Glyph::save:
        return savePath();
    }
    return {};
}

class LineIconEngine : public QIconEngine {
public:
    explicit LineIconEngine(Glyph glyph) : glyph_(glyph) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor colour = QApplication::palette().color(group, QPalette::ButtonText);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.height() / gridUnits, rect.height() / gridUnits);
        painter->setPen(QPen(colour, strokeUnits, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(pathOf(glyph_));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new LineIconEngine(glyph_); }

private:
    Glyph glyph_;
};

} // namespace

QIcon lineIcon(Glyph glyph) {
    return QIcon(new LineIconEngine(glyph));
}

} // namespace lexiform::qt
