#pragma once

#include "ports/WindowController.h"

#include <memory>
#include <string_view>

namespace lexiform {

/// The application's scenes by identifier.
class Storyboard {
public:
    virtual ~Storyboard() = default;

    /// A new controller of the scene with this identifier, its controls connected; null when there
    /// is no such scene.
    [[nodiscard]] virtual std::shared_ptr<SceneController>
    instantiateController(std::string_view identifier) = 0;
};

} // namespace lexiform
