#pragma once

#include "base/Outcome.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <string>

namespace lexiform::linguistics {

/// A file mapped into memory, read-only; its pages are shared by all processes that map it.
class MappedFile {
public:
    /// Maps all of `file`, or tells in plain English why it cannot be read. An empty file maps to no bytes.
    [[nodiscard]] static Outcome<std::shared_ptr<const MappedFile>, std::string>
    open(const std::filesystem::path& file);

    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    /// Starts at a multiple of the page size; lasts as long as this object.
    [[nodiscard]] std::span<const std::byte> bytes() const { return bytes_; }

private:
    explicit MappedFile(std::span<const std::byte> bytes) : bytes_(bytes) {}

    std::span<const std::byte> bytes_;
};

} // namespace lexiform::linguistics
