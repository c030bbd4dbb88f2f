#include "platform/linguistics/modelFolders.h"

#include <cstdlib>
#include <system_error>

namespace lexiform {

std::vector<std::filesystem::path> modelFolders() {
    std::vector<std::filesystem::path> folders;
    if (const char* named = std::getenv("LEXIFORM_MODELS"); named != nullptr && *named != '\0')
        folders.emplace_back(named);
    std::error_code unknown;
    const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", unknown);
    if (!unknown) folders.push_back(executable.parent_path().parent_path() / "share/lexiform/models");
    return folders;
}

} // namespace lexiform
