#pragma once

#include "analysis/tagger/Tagger.h"
#include "platform/qt/windows/WindowServices.h"
#include "ports/WindowController.h"

#include <memory>
#include <string_view>

namespace lexiform::qt {

inline constexpr std::string_view documentSceneIdentifier = "Document Window Controller";

/// A new document window, not yet shown, with the controller of its analysis; `makeTagger` gives each
/// pass its tagger.
[[nodiscard]] std::shared_ptr<SceneController> makeDocumentScene(const TaggerFactory& makeTagger,
                                                                 const WindowServices& services);

} // namespace lexiform::qt
