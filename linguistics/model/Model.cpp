#include "linguistics/model/Model.h"

#include "linguistics/file/ModelFile.h"
#include "linguistics/network/NetworkTagger.h"
#include "linguistics/tagging/LinearTagger.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace lexiform::linguistics {

namespace {

constexpr std::uint32_t informationVersion = 1;

/// The lines in `sections`; empty where there are none.
Outcome<std::string_view, std::string> informationIn(const ModelFile& sections) {
    if (!sections.has(SectionId::information)) return std::string_view();
    const auto text = sections.section<char>(SectionId::information, informationVersion);
    if (!text.succeeded()) return text.fault();
    const std::string_view lines(text.value().data(), text.value().size());
    if (!lines.empty() && lines.back() != '\n') return std::string("the information is not lines of text");
    return lines;
}

} // namespace

Model::Model(std::shared_ptr<const MappedFile> file, const ModelFile& sections, Parts parts)
    : file_(std::move(file)), language_(sections.language()), parts_(std::move(parts)) {}

Outcome<std::shared_ptr<const Model>, ModelFault> Model::load(const std::filesystem::path& file) {
    const auto mapped = MappedFile::open(file);
    if (!mapped.succeeded()) return ModelFault{file, "it cannot be read: " + mapped.fault(), false};
    const auto sections = ModelFile::over(mapped.value()->bytes());
    if (!sections.succeeded()) return ModelFault{file, sections.fault(), false};
    auto parts = partsIn(sections.value());
    if (!parts.succeeded()) return ModelFault{file, parts.fault(), false};
    return std::shared_ptr<const Model>(
        new Model(mapped.value(), sections.value(), std::move(parts).value()));
}

Outcome<Model::Parts, std::string> Model::partsIn(const ModelFile& sections) {
    auto labels = labelsIn(sections);
    if (!labels.succeeded()) return labels.fault();
    auto segmentation = SegmentationModel::over(sections);
    if (!segmentation.succeeded()) return segmentation.fault();
    auto classifiers = ClassifierWords::over(sections);
    if (!classifiers.succeeded()) return classifiers.fault();
    const auto information = informationIn(sections);
    if (!information.succeeded()) return information.fault();
    Parts parts{information.value(), std::move(labels).value(), std::move(segmentation).value(),
                std::move(classifiers).value(), std::nullopt};
    if (!sections.has(SectionId::lemmas)) return parts;
    auto lemmas = LemmaModel::over(sections);
    if (!lemmas.succeeded()) return lemmas.fault();
    parts.lemmas = std::move(lemmas).value();
    return parts;
}

Outcome<Model::Labels, std::string> Model::labelsIn(const ModelFile& sections) {
    if (sections.has(SectionId::network)) {
        auto network = NetworkModel::over(sections);
        if (!network.succeeded()) return network.fault();
        return Labels(std::move(network).value());
    }
    auto linear = LinearModel::over(sections);
    if (!linear.succeeded()) return linear.fault();
    return Labels(std::move(linear).value());
}

std::string_view Model::information(std::string_view key) const {
    std::string_view rest = parts_.information;
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        if (line.size() > key.size() && line.starts_with(key) && line[key.size()] == '\t')
            return line.substr(key.size() + 1);
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
    }
    return {};
}

std::unique_ptr<SequenceTagger> Model::tagger() const {
    if (const auto* network = std::get_if<NetworkModel>(&parts_.labels))
        return std::make_unique<NetworkTagger>(*network);
    return std::make_unique<LinearTagger>(std::get<LinearModel>(parts_.labels));
}

} // namespace lexiform::linguistics
