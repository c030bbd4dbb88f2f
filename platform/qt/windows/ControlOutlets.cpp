#include "platform/qt/windows/ControlOutlets.h"

#include "platform/qt/adapters/QtPopUpButton.h"
#include "platform/qt/adapters/QtProgressIndicator.h"
#include "platform/qt/adapters/QtScrollView.h"
#include "platform/qt/adapters/QtTextField.h"
#include "platform/qt/adapters/QtTextPane.h"
#include "platform/qt/adapters/QtView.h"

#include <utility>

namespace lexiform::qt {

ControlOutlets::ControlOutlets(ViewController& controller, const DocumentPanes& panes, PopUpBox* typesPopUp,
                               BusyLine* busyLine, std::function<QString()> title)
    : window_(std::make_shared<QtWindow>(std::move(title))), view_(std::make_shared<QtView>(window_)),
      typesPopUp_(std::make_shared<QtPopUpButton>(typesPopUp)),
      inputScroller_(std::make_shared<QtScrollView>(panes.input())),
      outputScroller_(std::make_shared<QtScrollView>(panes.output())),
      concordanceScroller_(std::make_shared<QtScrollView>(panes.concordance())) {
    controller.view = view_;
    controller.typesPopup = typesPopUp_;
    controller.intextScroller = inputScroller_;
    controller.intextTextbox = std::make_shared<QtTextPane>(panes.input());
    controller.outtextScroller = outputScroller_;
    controller.outtextTextbox = std::make_shared<QtTextPane>(panes.output());
    controller.concordScroller = concordanceScroller_;
    // A list that is made again shows the same stretch: a reader compares the counts.
    controller.concordTextbox = std::make_shared<QtTextPane>(panes.concordance(), AfterReplacing::keepsPlace);
    controller.colourKeyText = std::make_shared<QtTextField>(panes.key());
    controller.progressSpinner = std::make_shared<QtProgressIndicator>(busyLine);
}

} // namespace lexiform::qt
