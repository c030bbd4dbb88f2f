#include "document/package/Package.h"

#include <zip.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace lexiform::document {

namespace {

struct ClosePart {
    void operator()(zip_file_t* part) const { zip_fclose(part); }
};

/// How large a packed part says that it is; no more than there are bytes in the whole.
std::optional<std::size_t> packedSize(zip* archive, std::uint64_t index, std::size_t whole) {
    zip_stat_t stat{};
    if (zip_stat_index(archive, index, 0, &stat) != 0 || (stat.valid & ZIP_STAT_COMP_SIZE) == 0)
        return std::nullopt;
    return std::min<std::size_t>(stat.comp_size, whole);
}

std::size_t mostBytes(std::size_t packed, std::size_t unpackedBefore, const PackageLimits& limits) {
    const std::size_t honest = std::max(limits.unsuspicious, packed * limits.ratio);
    return std::min({honest, limits.part, limits.all - unpackedBefore});
}

} // namespace

bool isPackage(std::string_view bytes) {
    return bytes.starts_with("PK\x03\x04");
}

void Package::Close::operator()(zip* archive) const {
    zip_discard(archive);
}

Outcome<Package, ReadFault> Package::open(std::string_view bytes, PackageLimits limits) {
    // The library takes no bytes for an archive without parts.
    if (!isPackage(bytes)) return ReadFault::damaged;
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* const source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
    zip* const archive = source ? zip_open_from_source(source, ZIP_RDONLY, &error) : nullptr;
    zip_error_fini(&error);
    if (archive) return Package(archive, bytes.size(), limits);
    if (source) zip_source_free(source);
    return ReadFault::damaged;
}

bool Package::has(const std::string& name) const {
    return zip_name_locate(archive_.get(), name.c_str(), 0) >= 0;
}

Outcome<std::string, ReadFault> Package::part(const std::string& name) {
    const std::int64_t index = zip_name_locate(archive_.get(), name.c_str(), 0);
    if (index < 0) return ReadFault::damaged;
    const auto packed = packedSize(archive_.get(), static_cast<std::uint64_t>(index), size_);
    const std::unique_ptr<zip_file_t, ClosePart> file(
        zip_fopen_index(archive_.get(), static_cast<std::uint64_t>(index), 0));
    if (!file || !packed) return ReadFault::damaged;

    const std::size_t most = mostBytes(*packed, unpacked_, limits_);
    std::string bytes;
    std::array<char, std::size_t{1} << 16U> buffer{};
    std::int64_t count = 0;
    while ((count = zip_fread(file.get(), buffer.data(), buffer.size())) > 0) {
        if (bytes.size() + static_cast<std::size_t>(count) > most) return ReadFault::tooLarge;
        bytes.append(buffer.data(), static_cast<std::size_t>(count));
    }
    if (count < 0) return ReadFault::damaged;
    unpacked_ += bytes.size();
    return bytes;
}

} // namespace lexiform::document
