#include "platform/qt/documents/SceneStoryboard.h"

#include <utility>

namespace lexiform::qt {

void SceneStoryboard::addScene(std::string identifier, SceneMaker make) {
    scenes_.insert_or_assign(std::move(identifier), std::move(make));
}

std::shared_ptr<SceneController> SceneStoryboard::instantiateController(std::string_view identifier) {
    const auto scene = scenes_.find(identifier);
    return scene == scenes_.end() ? nullptr : scene->second();
}

} // namespace lexiform::qt
