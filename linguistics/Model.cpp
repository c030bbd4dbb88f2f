#include "linguistics/Model.h"

#include "linguistics/LinearTagger.h"

#include <utility>

namespace lexiform::linguistics {

Model::Model(std::shared_ptr<const MappedFile> file, LinearModel linear)
    : file_(std::move(file)), linear_(std::move(linear)) {}

Outcome<std::shared_ptr<const Model>, ModelFault> Model::load(const std::filesystem::path& file) {
    const auto mapped = MappedFile::open(file);
    if (!mapped.succeeded()) return ModelFault{file, "it cannot be read: " + mapped.fault(), false};
    auto linear = LinearModel::over(mapped.value()->bytes());
    if (!linear.succeeded()) return ModelFault{file, linear.fault(), false};
    return std::shared_ptr<const Model>(new Model(mapped.value(), std::move(linear).value()));
}

std::unique_ptr<SequenceTagger> Model::tagger() const {
    return std::make_unique<LinearTagger>(linear_);
}

} // namespace lexiform::linguistics
