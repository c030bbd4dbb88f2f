#include "linguistics/file/ModelFormat.h"

#include "linguistics/text/Hash.h"

#include <algorithm>
#include <cstring>

namespace lexiform::linguistics {

namespace {

// Eight bytes at a time; a shorter rest is padded with zeros.
std::uint64_t hashOfBytes(std::span<const std::byte> bytes) {
    std::uint64_t hash = bytes.size();
    for (std::size_t at = 0; at < bytes.size(); at += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data() + at, std::min<std::size_t>(8, bytes.size() - at));
        hash = combined(hash, word);
    }
    return hash;
}

} // namespace

std::uint64_t checksumOf(std::span<const std::byte> file) {
    ModelHeader header;
    std::memcpy(&header, file.data(), sizeof(header));
    header.checksum = 0;
    return combined(hashOfBytes(std::as_bytes(std::span(&header, 1))),
                    hashOfBytes(file.subspan(sizeof(header))));
}

} // namespace lexiform::linguistics
