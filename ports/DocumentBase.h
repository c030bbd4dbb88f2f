#pragma once

#include "base/Outcome.h"
#include "ports/WindowController.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform {

/// Why a document could not be read or written; the desktop presents it.
struct DocumentError {
    std::string domain;
    int code = 0;
    bool operator==(const DocumentError&) const = default;
};

/// The base of the application's document class. The desktop makes one per opened file or new
/// document and calls, on the main thread, first `readFromData` for a file and then
/// `makeWindowControllers`.
class DocumentBase {
public:
    virtual ~DocumentBase() = default;

    /// Takes a file's bytes and the name of its type.
    virtual Outcome<Done, DocumentError> readFromData(std::string bytes, std::string type) = 0;
    /// Makes the document's window.
    virtual void makeWindowControllers() = 0;
    /// The bytes to write into a file of the named type.
    virtual Outcome<std::string, DocumentError> dataOfType(std::string_view type) = 0;

    /// The path of the file on disk; absent for a document that has none yet.
    std::optional<std::string> fileURL;
    /// In the order of adding.
    std::vector<std::shared_ptr<WindowController>> windowControllers;
};

} // namespace lexiform
