#include "tools/train/file/ModelFileWriter.h"

#include <algorithm>
#include <cstring>

namespace lexiform::train {

using namespace linguistics;

void ModelFileWriter::append(SectionId id, std::uint32_t version, std::span<const std::byte> bytes) {
    sections_.push_back({id, version, {bytes.begin(), bytes.end()}});
}

void ModelFileWriter::append(const ModelFileWriter& other) {
    sections_.insert(sections_.end(), other.sections_.begin(), other.sections_.end());
}

std::vector<std::byte> ModelFileWriter::bytes() const {
    std::vector<std::byte> file(sizeof(ModelHeader) + sections_.size() * sizeof(SectionRecord));
    std::size_t place = sizeof(ModelHeader);
    for (const Section& section : sections_) {
        file.resize((file.size() + sectionAlignment - 1) / sectionAlignment * sectionAlignment);
        const SectionRecord record{static_cast<std::uint32_t>(section.id), section.version, file.size(),
                                   section.bytes.size()};
        std::memcpy(file.data() + place, &record, sizeof(record));
        place += sizeof(record);
        file.insert(file.end(), section.bytes.begin(), section.bytes.end());
    }
    ModelHeader header;
    header.sectionCount = static_cast<std::uint32_t>(sections_.size());
    header.fileSize = file.size();
    std::copy_n(language_.begin(), std::min(language_.size(), header.language.size() - 1),
                header.language.begin());
    std::memcpy(file.data(), &header, sizeof(header));
    header.checksum = checksumOf(file);
    std::memcpy(file.data(), &header, sizeof(header));
    return file;
}

} // namespace lexiform::train
