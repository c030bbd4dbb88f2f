#include "analysis/ViewController.h"

#include "base/fatalError.h"
#include "base/present.h"

#include <utility>

namespace lexiform {

ViewController::ViewController(TaggerFactory makeTagger, AnalysisServices services)
    : makeTagger_(std::move(makeTagger)), services_(std::move(services)) {}

void ViewController::clearWordDicts() {
    for (const auto dictionary : wordDictionaries())
        (this->*dictionary).clear();
}

Window& ViewController::window() const {
    Window* const shown = present(view)->window();
    if (shown == nullptr) fatalError("the controller's view is in no window");
    return *shown;
}

} // namespace lexiform
