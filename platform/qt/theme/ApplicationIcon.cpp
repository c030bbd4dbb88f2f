#include "platform/qt/theme/ApplicationIcon.h"

#include "platform/qt/theme/Appearance.h"

#include <QPainter>
#include <QPixmap>

#include <array>

namespace lexiform::qt {

namespace {

constexpr qreal tileUnits = 64;

struct Word {
    qreal x;
    qreal y;
    qreal width;
    Colour colour;
};

constexpr std::array<Word, 7> words = {{
    {13, 16, 14, Colour::blue},
    {31, 16, 20, Colour::red},
    {13, 29, 8, Colour::yellow},
    {25, 29, 17, Colour::green},
    {46, 29, 5, Colour::gray},
    {13, 42, 22, Colour::purple},
    {39, 42, 7, Colour::orange},
}};

void paintIcon(QPainter& painter, int size) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.scale(size / tileUnits, size / tileUnits);
    painter.setBrush(surfacesOf(Appearance::dark).window);
    painter.drawRoundedRect(QRectF{3, 3, 58, 58}, 13, 13);
    for (const Word& word : words) {
        painter.setBrush(valueOf(word.colour, Appearance::dark));
        painter.drawRoundedRect(QRectF{word.x, word.y, word.width, 6}, 3, 3);
    }
}

} // namespace

QIcon applicationIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paintIcon(painter, size);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace lexiform::qt
