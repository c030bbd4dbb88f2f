#include "analysis/ViewController.h"
#include "analysis/putPaneText.h"

namespace lexiform {

void ViewController::setInputText(std::string_view text) {
    putPaneText(text, intextTextbox, PaneOperation::replace);
}

void ViewController::appendOutputText(std::string_view text) {
    putPaneText(text, outtextTextbox, PaneOperation::append);
}

} // namespace lexiform
