#pragma once

#include "base/Outcome.h"

#include <string>
#include <string_view>

namespace lexiform {

/// Why a file could not be written.
struct WriteFault {
    /// In the words of the desktop, for a person.
    std::string localizedDescription;
};

/// Writes files.
class FileWriter {
public:
    virtual ~FileWriter() = default;

    /// Writes `bytes` straight to the file at `path`, replacing what it held; nothing is written
    /// beside it first, so a failure may leave the file cut short.
    virtual Outcome<Done, WriteFault> write(const std::string& path, std::string_view bytes) = 0;
};

} // namespace lexiform
