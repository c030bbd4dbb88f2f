#include "tools/train/file/writeFile.h"

#include <fstream>

namespace lexiform::train {

bool writeFile(const std::filesystem::path& file, std::span<const std::byte> bytes) {
    const std::filesystem::path part = file.string() + ".part";
    std::ofstream output(part, std::ios::binary);
    output.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (!output.flush()) return false;
    std::error_code fault;
    std::filesystem::rename(part, file, fault);
    return !fault;
}

} // namespace lexiform::train
