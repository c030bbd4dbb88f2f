#include "analysis/ViewController.h"
#include "base/present.h"

namespace lexiform {

namespace {

constexpr std::size_t typesItem = 2;

} // namespace

// The base class's own handling of the event is left out on purpose: the set-up is all there is to do.
void ViewController::viewDidAppear() {
    if (const std::shared_ptr<View> shown = view.lock())
        if (Window* window = shown->window()) window->setDelegate(weak_from_this());

    const std::shared_ptr<PopUpButton> popup = present(typesPopup);
    popup->removeAllItems();
    popup->addItems(theMenuItems);
    popup->selectItem(typesItem);
    popup->setEnabled(false);

    if (!present(intextTextbox).plainText().empty()) parseText();
    present(progressSpinner).setHidden(true);
}

} // namespace lexiform
