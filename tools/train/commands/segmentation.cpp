#include "tools/train/commands/segmentation.h"

#include "tools/train/commands/reportFault.h"
#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/file/writeFile.h"
#include "tools/train/segmentation/measureSegmentation.h"
#include "tools/train/segmentation/trainSegmentation.h"
#include "tools/train/sources/Sources.h"

#include <fstream>
#include <iostream>

namespace lexiform::train {

int trainAndMeasureSegmentation(const std::vector<std::string>& languages,
                                const std::filesystem::path& corpora, const std::filesystem::path& folder) {
    for (const std::string& language : languages) {
        const auto sources = sourcesOf(language, corpora);
        if (!sources.succeeded()) return reportFault(sources.fault());
        ModelFileWriter image(language);
        trainSegmentation(sources.value(), image, std::cerr);
        const std::vector<std::byte> bytes = image.bytes();
        if (!folder.empty() && !writeFile(folder / (language + ".lxm"), bytes))
            return reportFault("the file cannot be written");
        std::ofstream errors;
        if (!folder.empty()) errors.open(folder / (language + ".errors"), std::ios::binary);
        const std::string fault = measureSegmentation(sources.value(), bytes, std::cout, errors);
        if (!fault.empty()) return reportFault(fault);
    }
    return 0;
}

} // namespace lexiform::train
