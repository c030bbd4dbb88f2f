#pragma once

#include <filesystem>
#include <string>

namespace lexiform::linguistics {

/// Why a model cannot be used.
struct ModelFault {
    std::filesystem::path file; ///< the file looked at; empty where none was found
    std::string reason;         ///< in plain English, for example "the file is truncated"
    bool missing = false;       ///< no folder holds such a file
};

} // namespace lexiform::linguistics
