#pragma once

#include "analysis/ViewController.h"
#include "analysis/tagger/Tagger.h"

#include <memory>
#include <string>
#include <string_view>

namespace lexiform::cli {

/// A document window without a desktop: the controller's own passes run on panes in memory, so that
/// the command line counts what the window counts.
class HeadlessWindow {
public:
    explicit HeadlessWindow(TaggerFactory makeTagger);

    [[nodiscard]] ViewController& controller() { return *controller_; }
    /// Puts a text into the input pane.
    void setText(std::string_view text);
    /// What the concordance pane holds.
    [[nodiscard]] std::string concordance() const;

private:
    std::shared_ptr<ViewController> controller_;
    std::shared_ptr<View> view_;
    std::shared_ptr<PopUpButton> popup_;
};

} // namespace lexiform::cli
