#include "linguistics/file/ModelFile.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace lexiform::linguistics {

Outcome<ModelFile, std::string> ModelFile::over(std::span<const std::byte> bytes) {
    ModelFile file;
    file.bytes_ = bytes;
    if (const std::string fault = file.readHeader(); !fault.empty()) return fault;
    return file;
}

std::string ModelFile::readHeader() {
    if constexpr (std::endian::native != std::endian::little)
        return "models are for little-endian processors";
    ModelHeader header;
    if (bytes_.size() < sizeof(header)) return "the file is too short for a model";
    std::memcpy(&header, bytes_.data(), sizeof(header));
    if (header.magic != modelMagic) return "the file is not a model";
    if (header.version != modelVersion)
        return "the model is of version " + std::to_string(header.version) + ", this program reads " +
               std::to_string(modelVersion);
    if (header.fileSize != bytes_.size()) return "the file is truncated or has bytes to spare";
    if (header.checksum != checksumOf(bytes_)) return "the file is damaged: its checksum is wrong";
    language_.assign(header.language.begin(),
                     std::find(header.language.begin(), header.language.end(), '\0'));
    if (language_.empty() || language_.size() == header.language.size()) return "the model names no language";
    return readSections(header.sectionCount);
}

std::string ModelFile::readSections(std::uint32_t count) {
    if (count > mostSections) return "the model has too many sections";
    const std::size_t start = sizeof(ModelHeader) + count * sizeof(SectionRecord);
    if (start > bytes_.size()) return "the file is too short for its sections";
    sections_.resize(count);
    if (count != 0)
        std::memcpy(sections_.data(), bytes_.data() + sizeof(ModelHeader), count * sizeof(SectionRecord));
    for (const SectionRecord& record : sections_) {
        const bool inside = record.offset >= start && record.offset <= bytes_.size() &&
                            record.size <= bytes_.size() - record.offset;
        if (!inside || record.offset % sectionAlignment != 0)
            return "section " + std::to_string(record.id) + " lies outside the file";
    }
    return "";
}

const SectionRecord* ModelFile::find(SectionId id) const {
    const auto found = std::find_if(sections_.begin(), sections_.end(), [&](const SectionRecord& record) {
        return record.id == static_cast<std::uint32_t>(id);
    });
    return found == sections_.end() ? nullptr : &*found;
}

Outcome<std::span<const std::byte>, std::string> ModelFile::bytesOf(SectionId id, std::uint32_t version,
                                                                    std::size_t elementSize) const {
    const std::string name = "section " + std::to_string(static_cast<std::uint32_t>(id));
    const SectionRecord* record = find(id);
    if (record == nullptr) return name + " is missing";
    if (record->version != version)
        return name + " is of version " + std::to_string(record->version) + ", this program reads " +
               std::to_string(version);
    if (record->size % elementSize != 0) return name + " has a wrong size";
    return bytesOf(*record);
}

} // namespace lexiform::linguistics
