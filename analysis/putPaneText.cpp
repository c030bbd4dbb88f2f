#include "analysis/putPaneText.h"

#include "base/AttributedText.h"
#include "base/present.h"

#include <string>

namespace lexiform {

void putPaneText(std::string_view text, const std::shared_ptr<TextPane>& pane, PaneOperation operation) {
    const AttributedText attributed{std::string(text), Colour::text};
    TextStorage* storage = present(pane).textStorage();
    if (!storage) return;
    switch (operation) {
    case PaneOperation::replace:
        return storage->replace(attributed);
    case PaneOperation::append:
        return storage->append(attributed);
    }
}

} // namespace lexiform
