#include "linguistics/model/ModelStore.h"

#include "linguistics/language/LanguageIdentifier.h"
#include "linguistics/model/Model.h"

#include <utility>

namespace lexiform::linguistics {

ModelStore::ModelStore(std::vector<std::filesystem::path> folders) : folders_(std::move(folders)) {}

ModelStore::ModelStore(const std::shared_ptr<const Model>& only) {
    loaded_.emplace(only->language(), Loaded(only));
}

ModelStore::~ModelStore() = default;

ModelStore::Loaded ModelStore::model(std::string_view language) const {
    // Held while loading, so that two threads that need a model do not both read it.
    const std::lock_guard lock(mutex_);
    const auto known = loaded_.find(language);
    if (known != loaded_.end()) return known->second;
    return loaded_.emplace(std::string(language), load(language)).first->second;
}

const LanguageIdentifier& ModelStore::identifier() const {
    const std::lock_guard lock(mutex_);
    if (!identifier_) identifier_ = std::make_unique<const LanguageIdentifier>(loadIdentifier());
    return *identifier_;
}

LanguageIdentifier ModelStore::loadIdentifier() const {
    for (const std::filesystem::path& folder : folders_) {
        std::error_code error;
        const std::filesystem::path file = folder / "languages.lxi";
        if (!std::filesystem::exists(file, error)) continue;
        auto loaded = LanguageIdentifier::load(file);
        if (loaded.succeeded()) return std::move(loaded).value();
    }
    return {};
}

std::map<std::string, std::filesystem::path> ModelStore::available() const {
    std::map<std::string, std::filesystem::path> files;
    for (const std::filesystem::path& folder : folders_) {
        std::error_code error; // a folder that is not there has no models
        for (const auto& entry : std::filesystem::directory_iterator(folder, error))
            if (entry.path().extension() == ".lxm") files.emplace(entry.path().stem().string(), entry.path());
    }
    return files;
}

Outcome<Done, ModelFault> ModelStore::check(std::string_view language) const {
    const Loaded answer = model(language);
    if (!answer.succeeded()) return answer.fault();
    return Done{};
}

ModelStore::Loaded ModelStore::load(std::string_view language) const {
    const std::string name = std::string(language) + ".lxm";
    for (const std::filesystem::path& folder : folders_) {
        std::error_code error;
        const std::filesystem::path file = folder / name;
        if (std::filesystem::exists(file, error)) return Model::load(file);
    }
    return ModelFault{{}, "no folder of models holds " + name, true};
}

} // namespace lexiform::linguistics
