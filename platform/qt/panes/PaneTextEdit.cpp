#include "platform/qt/panes/PaneTextEdit.h"

#include "platform/qt/panes/PaneDocumentLayout.h"
#include "platform/qt/panes/PaneFont.h"
#include "platform/qt/panes/PaneScrollBar.h"
#include "platform/qt/panes/TextBlocks.h"
#include "platform/qt/panes/lineEndMarks.h"
#include "platform/qt/theme/Appearance.h"

#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QTextBlock>

#include <algorithm>
#include <cmath>

namespace lexiform::qt {

namespace {

constexpr int smallestText = 6; // points
constexpr int largestText = 72;

// The scroll bar stands in the right margin, and is narrower where that is.
int scrollBarWidth(const QMargins& margins) {
    return std::min(PaneScrollBar::barWidth, margins.right());
}

} // namespace

PaneTextEdit::PaneTextEdit(const QMargins& margins, QWidget* parent) : QPlainTextEdit(parent) {
    installDocument(margins - QMargins(0, 0, scrollBarWidth(margins), 0));
    setVerticalScrollBar(new PaneScrollBar(scrollBarWidth(margins)));
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFont(paneFont());
    takeSpacingFromFont();
    setFrameStyle(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setCursorWidth(0); // `paintCaret` paints it in the focus colour
    connect(this, &QPlainTextEdit::updateRequest, this, &PaneTextEdit::repaintFirstLines);
}

void PaneTextEdit::installDocument(const QMargins& margins) {
    auto* document = new QTextDocument(this);
    layout_ = new PaneDocumentLayout(document, margins);
    document->setDocumentLayout(layout_);
    setDocument(document);
}

std::string PaneTextEdit::text() const {
    return withTrueLineEnds(document()->toRawText(), document()->begin(), ownLineEnd_).toStdString();
}

AttributedText PaneTextEdit::attributedText() const {
    return {text(), Colour::text};
}

void PaneTextEdit::replaceText(const AttributedText& text) {
    const TextBlocks blocks = cutIntoBlocks(text.string());
    const bool undoable = document()->isUndoRedoEnabled();
    document()->setUndoRedoEnabled(false);
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    document()->clear();
    ownLineEnd_ = commonestLineEnd(blocks);
    prepareReplacement(text, blocks);
    insertBlocks(cursor, blocks, ownLineEnd_);
    cursor.endEditBlock();
    moveCursor(QTextCursor::Start);
    document()->setUndoRedoEnabled(undoable);
    document()->setModified(false);
    verticalScrollBar()->setValue(0);
}

void PaneTextEdit::appendText(const AttributedText& text) {
    const TextBlocks blocks = cutIntoBlocks(text.string(), document()->lastBlock().text());
    const bool undoable = document()->isUndoRedoEnabled();
    const int anchor = textCursor().anchor();
    const int position = textCursor().position();
    const int scrolled = verticalScrollBar()->value();
    document()->setUndoRedoEnabled(false);
    prepareAddition(text, blocks);
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    insertBlocks(end, blocks, ownLineEnd_);
    select(anchor, position);
    document()->setUndoRedoEnabled(undoable);
    document()->setModified(false);
    verticalScrollBar()->setValue(scrolled);
}

// What stands at the end of the document moves with each insertion there.
void PaneTextEdit::select(int anchor, int position) {
    QTextCursor cursor = textCursor();
    if (cursor.anchor() == anchor && cursor.position() == position) return;
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void PaneTextEdit::prepareReplacement(const AttributedText& /*text*/, const TextBlocks& /*blocks*/) {}

void PaneTextEdit::prepareAddition(const AttributedText& /*text*/, const TextBlocks& /*blocks*/) {}

bool PaneTextEdit::event(QEvent* event) {
    if (event->type() == QEvent::ApplicationFontChange) setZoom(zoom_);
    return QPlainTextEdit::event(event);
}

void PaneTextEdit::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange && layout_ != nullptr) takeSpacingFromFont();
}

void PaneTextEdit::takeSpacingFromFont() {
    layout_->setPitch(linePitch(font()));
}

// The first line reaches above what the editor takes for the first block, by less than the document
// margin, so that what it repaints and what it looks at must reach further.
void PaneTextEdit::repaintFirstLines(const QRect& rect, int dy) {
    const int above = static_cast<int>(std::ceil(document()->documentMargin()));
    if (dy == 0 && rect.top() > 0 && rect.top() <= 2 * above)
        viewport()->update(rect.adjusted(0, -above, 0, 0));
}

void PaneTextEdit::paintEvent(QPaintEvent* event) {
    const int below = static_cast<int>(std::ceil(document()->documentMargin()));
    QPaintEvent reachingFurther(event->rect().adjusted(0, 0, 0, below));
    layout_->setPainting(true);
    QPlainTextEdit::paintEvent(&reachingFurther);
    layout_->setPainting(false);
    if (paintsCaret_) paintCaret();
}

void PaneTextEdit::paintCaret() {
    const QAbstractTextDocumentLayout::PaintContext context = getPaintContext();
    const QTextBlock block = textCursor().block();
    int position = context.cursorPosition - block.position();
    // The position of a caret inside the text of an input method is given as a negative offset.
    if (context.cursorPosition < -1)
        position = block.layout()->preeditAreaPosition() - (context.cursorPosition + 2);
    if (context.cursorPosition == -1 || position < 0) return;
    const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
    const QTextLine line = block.layout()->lineForTextPosition(position);
    if (!line.isValid()) return;
    const int width = style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this);
    const QRectF caret(std::floor(place.left() + line.cursorToX(position)), place.top() + line.y(), width,
                       line.height());
    QPainter(viewport()).fillRect(caret, surfacesOf(appearanceOf(palette())).focus);
}

void PaneTextEdit::setZoom(int points) {
    const QFont plain = paneFont();
    zoom_ = std::clamp(points, smallestText - plain.pointSize(), largestText - plain.pointSize());
    QFont zoomed = plain;
    zoomed.setPointSize(plain.pointSize() + zoom_);
    setFont(zoomed);
}

void PaneTextEdit::setWrapsLines(bool wraps) {
    setLineWrapMode(wraps ? WidgetWidth : NoWrap);
    setHorizontalScrollBarPolicy(wraps ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

// A fine wheel turns by less than a step at a time.
void PaneTextEdit::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) return QPlainTextEdit::wheelEvent(event);
    wheelTurn_ += event->angleDelta().y();
    const int steps = wheelTurn_ / QWheelEvent::DefaultDeltasPerStep;
    wheelTurn_ -= steps * QWheelEvent::DefaultDeltasPerStep;
    if (steps == 0) return;
    setZoom(zoom_ + steps);
    emit zoomed();
}

namespace {

QMouseEvent moved(const QMouseEvent& event, QPointF position) {
    return {event.type(),   position,        event.scenePosition(), event.globalPosition(),
            event.button(), event.buttons(), event.modifiers(),     event.pointingDevice()};
}

} // namespace

void PaneTextEdit::mousePressEvent(QMouseEvent* event) {
    QMouseEvent onLine = moved(*event, onNearestLine(event->position()));
    QPlainTextEdit::mousePressEvent(&onLine);
    event->setAccepted(onLine.isAccepted());
}

void PaneTextEdit::mouseMoveEvent(QMouseEvent* event) {
    QMouseEvent onLine = moved(*event, onNearestLine(event->position()));
    QPlainTextEdit::mouseMoveEvent(&onLine);
    event->setAccepted(onLine.isAccepted());
}

void PaneTextEdit::mouseReleaseEvent(QMouseEvent* event) {
    QMouseEvent onLine = moved(*event, onNearestLine(event->position()));
    QPlainTextEdit::mouseReleaseEvent(&onLine);
    event->setAccepted(onLine.isAccepted());
}

void PaneTextEdit::mouseDoubleClickEvent(QMouseEvent* event) {
    QMouseEvent onLine = moved(*event, onNearestLine(event->position()));
    QPlainTextEdit::mouseDoubleClickEvent(&onLine);
    event->setAccepted(onLine.isAccepted());
    if (event->button() == Qt::LeftButton) emit lineDoubleClicked(textCursor().block().text());
}

// Between two lines there is a gap in which the editor would take a click for one at the line's end.
QPointF PaneTextEdit::onNearestLine(QPointF point) const {
    if (!viewport()->rect().contains(point.toPoint())) return point;
    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    for (; block.isValid(); block = block.next()) {
        const qreal height = blockBoundingRect(block).height();
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QRectF line = block.layout()->lineAt(i).naturalTextRect().translated(0, top);
            if (point.y() < line.top()) return {point.x(), line.center().y()};
            if (point.y() < line.bottom()) return point;
        }
        top += height;
    }
    return point;
}

QString PaneTextEdit::exactSelection() const {
    const QTextCursor cursor = textCursor();
    return withTrueLineEnds(cursor.selectedText(), document()->findBlock(cursor.selectionStart()),
                            ownLineEnd_);
}

QMimeData* PaneTextEdit::createMimeDataFromSelection() const {
    auto* data = new QMimeData;
    data->setText(exactSelection());
    return data;
}

} // namespace lexiform::qt
