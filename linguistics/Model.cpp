#include "linguistics/Model.h"

namespace lexiform::linguistics {

Outcome<std::shared_ptr<const Model>, ModelFault> Model::load(const std::filesystem::path& file) {
    return ModelFault{file, "models of this version cannot be read yet", false};
}

} // namespace lexiform::linguistics
