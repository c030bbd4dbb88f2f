#pragma once

#include "base/Outcome.h"
#include "linguistics/LinearModel.h"
#include "linguistics/MappedFile.h"
#include "linguistics/ModelFault.h"
#include "linguistics/SequenceModel.h"

#include <filesystem>
#include <memory>
#include <string>

namespace lexiform::linguistics {

/// What the engine knows of one language: a model file, mapped and checked. Immutable.
class Model : public SequenceModel {
public:
    /// Reads a model file; every offset and count is checked.
    [[nodiscard]] static Outcome<std::shared_ptr<const Model>, ModelFault>
    load(const std::filesystem::path& file);

    /// BCP 47; lasts as long as the model.
    [[nodiscard]] const std::string& language() const { return linear_.language(); }

    [[nodiscard]] std::unique_ptr<SequenceTagger> tagger() const override;

private:
    Model(std::shared_ptr<const MappedFile> file, LinearModel linear);

    std::shared_ptr<const MappedFile> file_;
    LinearModel linear_;
};

} // namespace lexiform::linguistics
