#pragma once

#include "base/Outcome.h"
#include "linguistics/ModelFault.h"

#include <filesystem>
#include <memory>

namespace lexiform::linguistics {

/// What the engine knows of one language.
class Model {
public:
    /// Reads a model file; every offset and count is checked.
    [[nodiscard]] static Outcome<std::shared_ptr<const Model>, ModelFault>
    load(const std::filesystem::path& file);
};

} // namespace lexiform::linguistics
