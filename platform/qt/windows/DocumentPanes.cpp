#include "platform/qt/windows/DocumentPanes.h"

#include "platform/qt/panes/PaneFrame.h"

namespace lexiform::qt {

namespace {

constexpr int textMinimum = 200;
constexpr int listMinimum = 152;

} // namespace

DocumentPanes::DocumentPanes(QWidget* parent)
    : PaneSplitter(parent), input_(new InputTextEdit), output_(new OutputTextEdit), key_(new KeyTextEdit),
      concordance_(new OutputTextEdit) {
    addPane(new PaneFrame(tr("Input"), input_), textMinimum, 1);
    addPane(new PaneFrame(tr("Output"), output_), textMinimum, 1);
    addPane(new PaneFrame(tr("Key"), key_), listMinimum, 0);
    addPane(new PaneFrame(tr("Concordance"), concordance_), listMinimum, 0);
    input_->setHint(tr("Type or paste a text here, or open a file. Parse then colours its words."));
    key_->setToolTip(tr("Click a line to see its words alone, and once more to see all"));
    concordance_->setToolTip(tr("Click a word twice to find it in the output"));
    input_->document()->clearUndoRedoStacks(); // setting a pane up is no edit of anybody's
}

} // namespace lexiform::qt
