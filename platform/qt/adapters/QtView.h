#pragma once

#include "ports/View.h"

#include <memory>

namespace lexiform::qt {

/// The content of a window. It is in its window for as long as that exists.
class QtView : public View {
public:
    explicit QtView(std::weak_ptr<Window> window);

    [[nodiscard]] Window* window() override;

private:
    std::weak_ptr<Window> window_;
};

} // namespace lexiform::qt
