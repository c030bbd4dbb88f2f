#pragma once

#include "linguistics/file/ModelFormat.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::train {

/// Lays the sections of a model file one after the other, in the format of docs/formats/model.md.
class ModelFileWriter {
public:
    /// A file for `language`, BCP 47, at most 15 characters.
    explicit ModelFileWriter(std::string_view language) : language_(language) {}

    template <typename Value>
    void append(linguistics::SectionId id, std::uint32_t version, const std::vector<Value>& values) {
        append(id, version, std::as_bytes(std::span(values)));
    }
    void append(linguistics::SectionId id, std::uint32_t version, std::span<const std::byte> bytes);
    /// All sections of `other`.
    void append(const ModelFileWriter& other);

    /// The whole file. The same sections give the same bytes.
    [[nodiscard]] std::vector<std::byte> bytes() const;

private:
    struct Section {
        linguistics::SectionId id;
        std::uint32_t version;
        std::vector<std::byte> bytes;
    };

    std::string language_;
    std::vector<Section> sections_;
};

} // namespace lexiform::train
