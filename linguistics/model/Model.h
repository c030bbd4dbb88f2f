#pragma once

#include "base/Outcome.h"
#include "linguistics/file/MappedFile.h"
#include "linguistics/file/ModelFault.h"
#include "linguistics/file/ModelFile.h"
#include "linguistics/lemmas/LemmaModel.h"
#include "linguistics/network/NetworkModel.h"
#include "linguistics/segmentation/SegmentationModel.h"
#include "linguistics/tagging/ClassifierWords.h"
#include "linguistics/tagging/LinearModel.h"
#include "linguistics/tagging/SequenceModel.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace lexiform::linguistics {

/// What the engine knows of one language: a model file, mapped and checked. Immutable.
class Model : public SequenceModel {
public:
    /// Reads a model file; every offset and count is checked.
    [[nodiscard]] static Outcome<std::shared_ptr<const Model>, ModelFault>
    load(const std::filesystem::path& file);

    /// BCP 47; lasts as long as the model.
    [[nodiscard]] const std::string& language() const { return language_; }

    /// The size of its file in bytes.
    [[nodiscard]] std::size_t size() const { return file_->bytes().size(); }
    /// What its file says of itself for people, "licence" and "figures" for example; empty where it says
    /// nothing of the kind.
    [[nodiscard]] std::string_view information(std::string_view key) const;

    [[nodiscard]] std::unique_ptr<SequenceTagger> tagger() const override;
    /// What has been learnt of cutting the language's text; null where nothing has.
    [[nodiscard]] const LearnedSegmentation* segmentation() const { return &parts_.segmentation.learned(); }
    /// The nouns that classify; empty for most languages.
    [[nodiscard]] const ClassifierWords& classifiers() const { return parts_.classifiers; }
    /// The lemmatizer's rules; null where there are none.
    [[nodiscard]] const LemmaModel* lemmas() const { return parts_.lemmas ? &*parts_.lemmas : nullptr; }

private:
    /// A recurrent network where the file has one, else a linear chain.
    using Labels = std::variant<NetworkModel, LinearModel>;

    /// What a file's sections hold, part by part.
    struct Parts {
        std::string_view information;
        Labels labels;
        SegmentationModel segmentation;
        ClassifierWords classifiers;
        std::optional<LemmaModel> lemmas;
    };

    Model(std::shared_ptr<const MappedFile> file, const ModelFile& sections, Parts parts);
    [[nodiscard]] static Outcome<Labels, std::string> labelsIn(const ModelFile& sections);
    [[nodiscard]] static Outcome<Parts, std::string> partsIn(const ModelFile& sections);

    std::shared_ptr<const MappedFile> file_;
    std::string language_;
    Parts parts_;
};

} // namespace lexiform::linguistics
