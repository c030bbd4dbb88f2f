#include "platform/qt/windows/PaneSplitter.h"

#include "platform/qt/windows/SplitterGrip.h"

#include <algorithm>

namespace lexiform::qt {

namespace {

constexpr int gapWidth = 8;
constexpr int paneCount = 4;

// The key and the concordance are content with a little less in a narrow window: between these two
// widths, the sums of the four panes, they grow with it.
constexpr int narrowSum = 984;
constexpr int wideSum = 1240;

int between(int narrow, int wide, int sum) {
    const int clamped = std::clamp(sum, narrowSum, wideSum);
    return narrow + (wide - narrow) * (clamped - narrowSum) / (wideSum - narrowSum);
}

QList<int> ownArrangement(int sum) {
    const int key = between(164, 168, sum);
    const int concordance = between(184, 224, sum);
    const int text = (sum - key - concordance) / 2;
    return {text, text, key, concordance};
}

} // namespace

PaneSplitter::PaneSplitter(QWidget* parent) : QSplitter(Qt::Horizontal, parent) {
    setHandleWidth(gapWidth);
    setChildrenCollapsible(false);
    connect(this, &QSplitter::splitterMoved, this, [this] {
        arranged_ = true;
        emit arranged(sizes());
    });
}

void PaneSplitter::addPane(QWidget* pane, int minimumWidth, int stretch) {
    pane->setMinimumWidth(minimumWidth);
    addWidget(pane);
    setStretchFactor(indexOf(pane), stretch);
}

void PaneSplitter::arrange(const QList<int>& sizes) {
    if (sizes.size() != count()) return;
    arranged_ = true;
    setSizes(sizes);
}

QSplitterHandle* PaneSplitter::createHandle() {
    return new SplitterGrip(this);
}

void PaneSplitter::resizeEvent(QResizeEvent* event) {
    QSplitter::resizeEvent(event);
    if (!arranged_ && count() == paneCount) setSizes(ownArrangement(width() - (paneCount - 1) * gapWidth));
}

} // namespace lexiform::qt
