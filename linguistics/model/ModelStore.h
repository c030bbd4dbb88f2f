#pragma once

#include "base/Outcome.h"
#include "linguistics/file/ModelFault.h"

#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

class LanguageIdentifier;
class Model;

/// The language models of some folders: `<code>.lxm` for the language with that BCP 47 code, from the
/// first folder that has it. A model is loaded when it is first asked for and kept as long as the
/// store. May be used by several threads at once.
class ModelStore {
public:
    explicit ModelStore(std::vector<std::filesystem::path> folders);
    /// A store that holds one model and looks nowhere.
    explicit ModelStore(const std::shared_ptr<const Model>& only);
    ~ModelStore();
    ModelStore(const ModelStore&) = delete;
    ModelStore& operator=(const ModelStore&) = delete;

    using Loaded = Outcome<std::shared_ptr<const Model>, ModelFault>;

    /// The model of `language`, or why there is none; the answer stays the same once given.
    [[nodiscard]] Loaded model(std::string_view language) const;

    /// What tells languages apart: from the first folder that has `languages.lxi`; without a file that can
    /// be used, by scripts and common languages alone. Loaded when it is first asked for.
    [[nodiscard]] const LanguageIdentifier& identifier() const;

    /// The model files of the folders, by language, in alphabetical order.
    [[nodiscard]] std::map<std::string, std::filesystem::path> available() const;

    /// Whether the model of `language` can be used, with the reason if not: for a program's start.
    [[nodiscard]] Outcome<Done, ModelFault> check(std::string_view language) const;

private:
    [[nodiscard]] Loaded load(std::string_view language) const;
    [[nodiscard]] LanguageIdentifier loadIdentifier() const;

    std::vector<std::filesystem::path> folders_;
    mutable std::mutex mutex_;
    mutable std::map<std::string, Loaded, std::less<>> loaded_;
    mutable std::unique_ptr<const LanguageIdentifier> identifier_;
};

} // namespace lexiform::linguistics
