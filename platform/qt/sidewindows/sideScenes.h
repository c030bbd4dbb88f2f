#pragma once

#include "platform/qt/windows/WindowServices.h"
#include "ports/Bundle.h"
#include "ports/UserDefaults.h"
#include "ports/WindowController.h"

#include <memory>
#include <string_view>

namespace lexiform::qt {

inline constexpr std::string_view colourSceneIdentifier = "Colour Window Controller";
inline constexpr std::string_view paletteSceneIdentifier = "Palette Window Controller";
inline constexpr std::string_view helpSceneIdentifier = "Help Window Controller";

// Each makes a new side window, not yet shown.

[[nodiscard]] std::shared_ptr<SceneController> makeColourScene(const WindowServices& services);
[[nodiscard]] std::shared_ptr<SceneController> makePaletteScene(const std::shared_ptr<UserDefaults>& defaults,
                                                                const WindowServices& services);
[[nodiscard]] std::shared_ptr<SceneController> makeHelpScene(const std::shared_ptr<Bundle>& bundle,
                                                             const WindowServices& services);

} // namespace lexiform::qt
