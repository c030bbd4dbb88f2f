#include "platform/qt/documents/printedDocument.h"

#include "platform/qt/theme/Appearance.h"

#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTextCursor>
#include <QToolBar>

namespace lexiform::qt {

namespace {

constexpr int pointSize = 11;
constexpr QSize usualSize{1040, 760}; // of the preview: all of its commands are in sight

QTextCharFormat inkOf(Colour colour) {
    QTextCharFormat format;
    format.setForeground(valueOf(colour, Appearance::light));
    return format;
}

void addOutput(QTextCursor& cursor, const AttributedText& text) {
    std::size_t start = 0;
    for (const AttributedText::Run& run : text.runs()) {
        cursor.insertText(QString::fromStdString(text.string().substr(start, run.end - start)),
                          inkOf(run.colour));
        start = run.end;
    }
}

// As in its pane, a line of the key stands for the colour of its number, and every other line is empty.
void addKey(QTextCursor& cursor, const QString& key) {
    int line = 0;
    for (const QString& words : key.split(u'\n', Qt::SkipEmptyParts)) {
        if (line >= static_cast<int>(Colour::text)) break;
        cursor.insertBlock();
        cursor.insertText(QStringLiteral("■ "), inkOf(static_cast<Colour>(line++)));
        cursor.insertText(words, inkOf(Colour::text));
    }
}

} // namespace

std::unique_ptr<QTextDocument> printedDocument(const DocumentPanes& panes) {
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    QFont font = panes.output()->font();
    font.setPointSize(pointSize);
    document->setDefaultFont(font);
    QTextCursor cursor(document.get());
    addOutput(cursor, panes.output()->attributedText());
    const QString key = QString::fromStdString(panes.key()->text());
    if (!key.isEmpty()) cursor.insertBlock();
    addKey(cursor, key);
    return document;
}

void showPrintPreview(QWidget& window, const DocumentPanes& panes) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(window.windowTitle());
    QPrintPreviewDialog preview(&printer, &window);
    preview.resize(window.size().boundedTo(usualSize).expandedTo(preview.sizeHint()));
    for (QToolBar* bar : preview.findChildren<QToolBar*>())
        bar->setMovable(false);
    const auto document = printedDocument(panes);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, document.get(),
                     [&](QPrinter* pages) { document->print(pages); });
    preview.exec();
}

} // namespace lexiform::qt
