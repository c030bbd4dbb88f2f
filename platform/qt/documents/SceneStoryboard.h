#pragma once

#include "ports/Storyboard.h"

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace lexiform::qt {

/// A storyboard whose scenes are made by code.
class SceneStoryboard : public Storyboard {
public:
    using SceneMaker = std::function<std::shared_ptr<SceneController>()>;

    /// A scene that was added under the same identifier before is replaced.
    void addScene(std::string identifier, SceneMaker make);

    [[nodiscard]] std::shared_ptr<SceneController>
    instantiateController(std::string_view identifier) override;

private:
    std::map<std::string, SceneMaker, std::less<>> scenes_;
};

} // namespace lexiform::qt
