#pragma once

#include "ports/FileWriter.h"

namespace lexiform::qt {

/// Writes files of the desktop; its faults are in the user's language.
class QtFileWriter : public FileWriter {
public:
    Outcome<Done, WriteFault> write(const std::string& path, std::string_view bytes) override;
};

} // namespace lexiform::qt
