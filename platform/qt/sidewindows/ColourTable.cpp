#include "platform/qt/sidewindows/ColourTable.h"

#include "platform/qt/sidewindows/ColourChip.h"
#include "platform/qt/sidewindows/ColourSwatch.h"
#include "platform/qt/theme/Appearance.h"
#include "platform/qt/theme/CaptionFont.h"

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
constexpr std::array<Row, 10> rows = {{{QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "gray"),
                                        QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "particle")},
                                       {QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "red"),
                                        QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "verb")},
                                       {QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "blue"),
                                        QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "noun")},
                                       {QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "green"),
                                        QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "adjective")},
                                       {QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "purple"),
                                        QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "adverb")},
                                       {QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "yellow"),
                                        QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "pronoun")},
                                       {QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "brown"),
                                        QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "determiner")},
                                       {QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "pink"),
                                        QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "preposition")},
                                       {QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "orange"),
                                        QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "conjunction")},
                                       {QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "text"),
                                        QT_TRANSLATE_NOOP("lexiform::qt::ColourTable", "name")}}};

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
        new CaptionFont(*heading, QFont::DemiBold);
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
        addValue(row, column + 1, colour, appearance);
    }
}

void ColourTable::addValue(int row, int column, Colour colour, Appearance appearance) {
    QLabel* label = addLabel(row, column, valueOf(colour, appearance).name().toUpper());
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    values_.append({colour, appearance, label});
}

void ColourTable::setClassPalette(ClassPalette palette) {
    for (auto* swatchOfRow : findChildren<ColourSwatch*>())
        swatchOfRow->setClassPalette(palette);
    for (auto* chip : findChildren<ColourChip*>())
        chip->setClassPalette(palette);
    for (const Value& value : values_)
        value.label->setText(valueOf(value.colour, value.appearance, palette).name().toUpper());
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
