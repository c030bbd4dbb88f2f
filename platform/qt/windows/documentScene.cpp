#include "platform/qt/windows/documentScene.h"

#include "platform/qt/adapters/QtWindowController.h"
#include "platform/qt/windows/DocumentWindow.h"

namespace lexiform::qt {

std::shared_ptr<SceneController> makeDocumentScene(const TaggerFactory& makeTagger,
                                                   const WindowServices& services) {
    auto content = std::make_shared<ViewController>(makeTagger, services.analysis);
    auto window = std::make_unique<DocumentWindow>(content, services);
    content->viewDidLoad();
    return std::make_shared<QtWindowController>(std::move(window), std::move(content));
}

} // namespace lexiform::qt
