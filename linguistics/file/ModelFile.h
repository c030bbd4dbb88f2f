#pragma once

#include "base/Outcome.h"
#include "linguistics/file/ModelFormat.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace lexiform::linguistics {

/// The sections in a model file's bytes, which must outlive it and what is read from it.
class ModelFile {
public:
    /// The sections of `bytes`, aligned to 8, once header, checksum and places have been checked; else
    /// what is wrong with them, in plain English. What the sections hold is not checked here.
    [[nodiscard]] static Outcome<ModelFile, std::string> over(std::span<const std::byte> bytes);

    /// The language that the model is for, BCP 47; never empty.
    [[nodiscard]] const std::string& language() const { return language_; }

    [[nodiscard]] bool has(SectionId id) const { return find(id) != nullptr; }

    /// Where its sections lie, in the order of the file.
    [[nodiscard]] std::span<const SectionRecord> sections() const { return sections_; }
    /// The bytes of one of `sections`.
    [[nodiscard]] std::span<const std::byte> bytesOf(const SectionRecord& section) const {
        return bytes_.subspan(section.offset, section.size);
    }

    /// The elements of section `id`. The fault says that the section is missing, of another version than
    /// `version`, or no whole number of elements long.
    template <typename Value>
    [[nodiscard]] Outcome<std::span<const Value>, std::string> section(SectionId id,
                                                                       std::uint32_t version) const {
        const auto bytes = bytesOf(id, version, sizeof(Value));
        if (!bytes.succeeded()) return bytes.fault();
        return std::span<const Value>{reinterpret_cast<const Value*>(bytes.value().data()),
                                      bytes.value().size() / sizeof(Value)};
    }

private:
    ModelFile() = default;
    [[nodiscard]] std::string readHeader();
    [[nodiscard]] std::string readSections(std::uint32_t count);
    [[nodiscard]] const SectionRecord* find(SectionId id) const;
    [[nodiscard]] Outcome<std::span<const std::byte>, std::string>
    bytesOf(SectionId id, std::uint32_t version, std::size_t elementSize) const;

    std::span<const std::byte> bytes_;
    std::string language_;
    std::vector<SectionRecord> sections_;
};

} // namespace lexiform::linguistics
