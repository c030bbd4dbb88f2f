#include "platform/qt/sidewindows/ColourTable.h"

#include "platform/qt/sidewindows/ColourChip.h"
#include "platform/qt/sidewindows/ColourSwatch.h"
#include "platform/qt/theme/Appearance.h"

#include <QPainter>

#include <array>

namespace lexiform::qt {

namespace {

constexpr int headingHeight = 40;
constexpr int rowHeight = 48;
enum Column { swatch, name, wordClass, lightChip, lightValue, darkChip, darkValue, columns };
constexpr std::array<int, columns> widths = {30, 84, 112, 50, 86, 50, 64};

struct Row {
    const char* name;
    const char* wordClass;
};
// In the order of the colours.
constexpr std::array<Row, 10> rows = {{{QT_TRANSLATE_NOOP("ColourTable", "gray"), "particle"},
                                       {"red", "verb"},
                                       {"blue", "noun"},
                                       {"green", "adjective"},
                                       {"purple", "adverb"},
                                       {"yellow", "pronoun"},
                                       {"brown", "determiner"},
                                       {"pink", "preposition"},
                                       {"orange", "conjunction"},
                                       {"text", "name"}}};

} // namespace

ColourTable::ColourTable(QWidget* parent) : QWidget(parent), grid_(new QGridLayout(this)) {
    constexpr QMargins margins(24, 4, 16, 8);
    grid_->setContentsMargins(margins);
    grid_->setSpacing(0);
    for (int column = 0; column < columns; ++column)
        grid_->setColumnMinimumWidth(column, widths.at(static_cast<std::size_t>(column)));
    addHeadings();
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        const Row& texts = rows.at(static_cast<std::size_t>(row));
        addRow(row + 1, static_cast<Colour>(row), tr(texts.name), tr(texts.wordClass));
    }
}

void ColourTable::addHeadings() {
    grid_->setRowMinimumHeight(0, headingHeight);
    const std::array<std::pair<int, QString>, 4> headings = {
        {{swatch, tr("Colour")}, {wordClass, tr("Class")}, {lightChip, tr("Light")}, {darkChip, tr("Dark")}}};
    for (const auto& [column, text] : headings) {
        auto* heading = new QLabel(text, this);
        QFont font = heading->font();
        font.setPointSizeF(font.pointSizeF() - 1);
        font.setWeight(QFont::DemiBold);
        heading->setFont(font);
        heading->setForegroundRole(QPalette::PlaceholderText);
        grid_->addWidget(heading, 0, column, 1, 2);
    }
}

void ColourTable::addRow(int row, Colour colour, const QString& colourName, const QString& className) {
    grid_->setRowMinimumHeight(row, rowHeight);
    grid_->addWidget(new ColourSwatch(colour, this), row, swatch);
    addLabel(row, name, colourName);
    addLabel(row, wordClass, className);
    for (const auto& [appearance, column] :
         {std::pair{Appearance::light, lightChip}, std::pair{Appearance::dark, darkChip}}) {
        grid_->addWidget(new ColourChip(colour, appearance, this), row, column);
        QLabel* value = addLabel(row, column + 1, valueOf(colour, appearance).name().toUpper());
        value->setForegroundRole(QPalette::PlaceholderText);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
}

QLabel* ColourTable::addLabel(int row, int column, const QString& text) {
    auto* label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    grid_->addWidget(label, row, column);
    return label;
}

// Hairlines between the rows.
void ColourTable::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(surfacesOf(appearanceOf(palette())).hover);
    for (int row = 1; row < static_cast<int>(rows.size()); ++row) {
        const int bottom = grid_->cellRect(row, 0).bottom();
        painter.drawLine(grid_->contentsMargins().left(), bottom, width() - grid_->contentsMargins().right(),
                         bottom);
    }
}

} // namespace lexiform::qt
