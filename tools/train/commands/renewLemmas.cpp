#include "tools/train/commands/renewLemmas.h"

#include "base/Outcome.h"
#include "linguistics/file/MappedFile.h"
#include "linguistics/file/ModelFile.h"
#include "tools/train/commands/reportFault.h"
#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/file/writeFile.h"
#include "tools/train/lemmas/renewedModel.h"
#include "tools/train/lemmas/trainLemmas.h"
#include "tools/train/sources/Sources.h"

#include <iostream>

namespace lexiform::train {

namespace {

using namespace linguistics;
namespace fs = std::filesystem;

/// Renews one model; the fault says why it stays as it is.
Outcome<Done, std::string> renewLemmasIn(const fs::path& file, const fs::path& corpora) {
    const auto mapped = MappedFile::open(file);
    if (!mapped.succeeded()) return file.string() + ": " + mapped.fault();
    const auto model = ModelFile::over(mapped.value()->bytes());
    if (!model.succeeded()) return file.string() + ": " + model.fault();
    const auto sources = sourcesOf(model.value().language(), corpora);
    if (!sources.succeeded()) return sources.fault();
    ModelFileWriter lemmas(model.value().language());
    trainLemmas(sources.value(), corpora, lemmas, std::cerr);
    if (!writeFile(file, renewedModel(model.value(), lemmas)))
        return file.string() + ": it cannot be written";
    return Done{};
}

} // namespace

int renewLemmas(const std::vector<std::string>& languages, const fs::path& corpora, const fs::path& folder) {
    for (const std::string& language : languages) {
        const fs::path file = folder / (language + ".lxm");
        if (!fs::exists(file))
            return reportFault(file.string() + ": there is no model whose lemmas could be renewed");
        const auto outcome = renewLemmasIn(file, corpora);
        if (!outcome.succeeded()) return reportFault(outcome.fault());
        std::cout << file.string() << ": " << fs::file_size(file) << " bytes" << std::endl;
    }
    return 0;
}

} // namespace lexiform::train
