#include "platform/qt/sidewindows/ManualView.h"

#include "platform/qt/theme/Appearance.h"

#include <QEvent>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace lexiform::qt {

namespace {

constexpr qreal zoomStep = 1.2;
constexpr qreal smallestZoom = 0.25;
constexpr qreal largestZoom = 5;

} // namespace

ManualView::ManualView(QWidget* parent)
    : QWidget(parent), pages_(new ManualPages(this)), search_(new QPdfSearchModel(this)),
      page_(new QLabel(this)), zoom_(new QLabel(this)), wanted_(new QLineEdit(this)) {
    pages_->markFound(*search_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeBar());
    column->addWidget(pages_, 1);
    addKeys();
    connect(pages_->verticalScrollBar(), &QScrollBar::valueChanged, this, &ManualView::showPlace);
    connect(pages_->verticalScrollBar(), &QScrollBar::rangeChanged, this, &ManualView::showPlace);
    connect(pages_, &QPdfView::zoomFactorChanged, this, &ManualView::showPlace);
    connect(pages_, &QPdfView::zoomModeChanged, this, &ManualView::showPlace);
    pages_->setFocus();
    dressSurround();
    showPlace();
}

void ManualView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) dressSurround();
}

// The pages' view fills what is round them with this role. They stay white in the dark.
void ManualView::dressSurround() {
    const QColor light(0xDD, 0xE1, 0xE6);
    const bool isDark = appearanceOf(palette()) == Appearance::dark;
    QPalette dressed = pages_->palette();
    dressed.setColor(QPalette::Dark, isDark ? surfacesOf(Appearance::dark).pane : light);
    pages_->setPalette(dressed);
}

void ManualView::setDocument(QPdfDocument* document, const QList<ManualLink>& links) {
    forgetMatch();
    pages_->setDocument(document);
    pages_->setLinks(links);
    search_->setDocument(document);
    showPlace();
}

void ManualView::setFitted(bool fitted) {
    pages_->setZoomMode(fitted ? QPdfView::ZoomMode::FitToWidth : QPdfView::ZoomMode::Custom);
}

bool ManualView::findNext() {
    const int matches = search_->rowCount({});
    awaitsMatch_ = matches == 0;
    if (awaitsMatch_) return false;
    match_ = (match_ + 1) % matches;
    const QPdfLink place = search_->resultAtIndex(match_);
    pages_->setCurrentResult(match_);
    pages_->goTo(place.page(), place.location().y());
    return true;
}

void ManualView::forgetMatch() {
    match_ = -1;
    awaitsMatch_ = false;
    pages_->setCurrentResult(match_);
}

QToolBar* ManualView::makeBar() {
    auto* bar = new QToolBar(this);
    back_ = addCommand(bar, QStringLiteral("‹"), tr("Previous page"), {Qt::ALT | Qt::Key_Left});
    bar->addWidget(page_);
    forward_ = addCommand(bar, QStringLiteral("›"), tr("Next page"), {Qt::ALT | Qt::Key_Right});
    connect(back_, &QAction::triggered, this, [this] { goToPage(pages_->pageShown() - 1); });
    connect(forward_, &QAction::triggered, this, [this] { goToPage(pages_->pageShown() + 1); });
    wanted_->setPlaceholderText(tr("Search"));
    wanted_->setClearButtonEnabled(true);
    bar->addWidget(wanted_);
    QAction* smaller = addCommand(bar, QStringLiteral("−"), tr("Smaller"), {QKeySequence::ZoomOut});
    bar->addWidget(zoom_);
    QAction* larger =
        addCommand(bar, QStringLiteral("+"), tr("Larger"), {QKeySequence::ZoomIn, Qt::CTRL | Qt::Key_Equal});
    connect(smaller, &QAction::triggered, this, [this] { zoomBy(1 / zoomStep); });
    connect(larger, &QAction::triggered, this, [this] { zoomBy(zoomStep); });
    return bar;
}

QAction* ManualView::addCommand(QToolBar* bar, const QString& title, const QString& toolTip,
                                const QList<QKeySequence>& keys) {
    QAction* action = bar->addAction(title);
    action->setToolTip(toolTip);
    action->setShortcuts(keys);
    bar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    return action;
}

void ManualView::addKeys() {
    connect(wanted_, &QLineEdit::textChanged, this, [this](const QString& text) {
        forgetMatch();
        search_->setSearchString(text);
    });
    // The pages are searched one after the other, behind whoever types fast.
    connect(search_, &QAbstractItemModel::rowsInserted, this, [this] {
        if (awaitsMatch_) findNext();
    });
    connect(wanted_, &QLineEdit::returnPressed, this, &ManualView::findNext);
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this, &ManualView::findNext);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        wanted_->setFocus();
        wanted_->selectAll();
    });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_0), this), &QShortcut::activated, this,
            [this] { setFitted(true); });
    connect(new QShortcut(Qt::Key_Home, pages_, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            this, [this] { goToPage(0); });
    connect(new QShortcut(Qt::Key_End, pages_, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            this, [this] { pages_->verticalScrollBar()->triggerAction(QScrollBar::SliderToMaximum); });
}

void ManualView::goToPage(int page) {
    const int count = pages_->document() ? pages_->document()->pageCount() : 0;
    if (page < 0 || page >= count) return;
    pages_->goTo(page, 0);
}

// From a page that is fitted: its zoom is the ratio of the widths.
void ManualView::zoomBy(qreal factor) {
    if (!pages_->document() || pages_->document()->pageCount() == 0) return;
    qreal now = pages_->zoomFactor();
    if (pages_->zoomMode() != QPdfView::ZoomMode::Custom) {
        constexpr qreal pointsInInch = 72;
        const qreal page =
            pages_->document()->pagePointSize(0).width() * pages_->logicalDpiX() / pointsInInch;
        now = (pages_->viewport()->width() - 2 * ManualPages::pageMargin) / page;
    }
    pages_->setZoomMode(QPdfView::ZoomMode::Custom);
    pages_->setZoomFactor(std::clamp(now * factor, smallestZoom, largestZoom));
}

void ManualView::showPlace() {
    const int count = pages_->document() ? pages_->document()->pageCount() : 0;
    const int page = pages_->pageShown();
    page_->setText(count == 0 ? QString() : tr("%1 of %2").arg(page + 1).arg(count));
    back_->setEnabled(page > 0);
    forward_->setEnabled(page + 1 < count);
    const bool fitted = pages_->zoomMode() == QPdfView::ZoomMode::FitToWidth;
    constexpr int hundred = 100;
    zoom_->setText(fitted ? tr("Fit width") : tr("%1 %").arg(std::lround(pages_->zoomFactor() * hundred)));
}

} // namespace lexiform::qt
