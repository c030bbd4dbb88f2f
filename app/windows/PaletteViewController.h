#pragma once

#include "ports/TextField.h"
#include "ports/UserDefaults.h"
#include "ports/ViewControllerBase.h"

#include <memory>

namespace lexiform {

/// The content of a palette window: the key that a document window last listed, as it was when the palette
/// last came on screen.
class PaletteViewController : public ViewControllerBase,
                              public WindowDelegate,
                              public std::enable_shared_from_this<PaletteViewController> {
public:
    explicit PaletteViewController(std::shared_ptr<UserDefaults> defaults);

    /// The window's layout connects it before the window comes on screen.
    std::shared_ptr<TextField> paletteKeyText;

    /// Shows the stored key and the title of its window. A view in no window stops the program.
    void viewDidAppear() override;

private:
    std::shared_ptr<UserDefaults> defaults_;
};

} // namespace lexiform
