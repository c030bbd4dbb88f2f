#pragma once

#include <zip.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace lexiform::document {

/// A zip archive in memory, made of named parts in their order. The part "mimetype" is not compressed.
inline std::string zipOf(const std::vector<std::pair<std::string, std::string>>& parts) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* const target = zip_source_buffer_create(nullptr, 0, 0, &error);
    zip_t* const archive = zip_open_from_source(target, ZIP_TRUNCATE, &error);
    if (!archive) throw std::runtime_error("no archive");
    zip_source_keep(target);
    for (const auto& [name, content] : parts) {
        zip_source_t* const part = zip_source_buffer(archive, content.data(), content.size(), 0);
        const auto index = zip_file_add(archive, name.c_str(), part, ZIP_FL_ENC_UTF_8);
        if (index < 0) throw std::runtime_error("no part");
        const bool isStored = name == "mimetype";
        zip_set_file_compression(archive, static_cast<std::uint64_t>(index),
                                 isStored ? ZIP_CM_STORE : ZIP_CM_DEFLATE, 0);
    }
    if (zip_close(archive) != 0) throw std::runtime_error("not written");
    zip_stat_t stat{};
    zip_source_stat(target, &stat);
    std::string bytes(stat.size, '\0');
    zip_source_open(target);
    zip_source_read(target, bytes.data(), bytes.size());
    zip_source_close(target);
    zip_source_free(target);
    return bytes;
}

} // namespace lexiform::document
