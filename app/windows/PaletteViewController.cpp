#include "app/windows/PaletteViewController.h"

#include "base/present.h"

#include <utility>

namespace lexiform {

PaletteViewController::PaletteViewController(std::shared_ptr<UserDefaults> defaults)
    : defaults_(std::move(defaults)) {}

// The base class's event is left out on purpose.
void PaletteViewController::viewDidAppear() {
    const auto ownView = view.lock();
    Window* const window = ownView ? ownView->window() : nullptr;
    if (window != nullptr) window->setDelegate(weak_from_this());
    present(paletteKeyText).setStringValue(present(defaults_).stringForKey("theKeyStr").value_or("???"));
    if (window == nullptr) fatalError("the palette is in no window");
    window->setTitle(defaults_->stringForKey("windowTitle").value_or("????"));
}

} // namespace lexiform
