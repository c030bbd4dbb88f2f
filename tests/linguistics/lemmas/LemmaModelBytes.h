#pragma once

#include "linguistics/file/ModelFile.h"
#include "linguistics/lemmas/LemmaFormat.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// A model file made by hand that holds the sections of a lemmatizer and nothing else, whatever is in them.
struct LemmaModelBytes {
    std::string_view language = "en";
    std::vector<std::uint8_t> rules{};
    std::vector<std::uint16_t> bucketStarts{0, 0};
    std::vector<LemmaWeight> weights{};

    /// Adds a rule; `inserted` and `ending` are UTF-8.
    void addRule(bool whole, std::uint8_t kept, std::uint8_t dropped, std::uint8_t suffixDropped,
                 std::string_view inserted, std::string_view ending) {
        rules.insert(rules.end(), {std::uint8_t{whole}, kept, dropped, suffixDropped});
        for (const std::string_view text : {inserted, ending}) {
            rules.push_back(static_cast<std::uint8_t>(text.size()));
            rules.insert(rules.end(), text.begin(), text.end());
        }
    }

    /// Adds a weight; all are in one bucket.
    void addWeight(std::uint64_t feature, std::size_t label, int root) {
        weights.push_back(LemmaWeight::of(lemmaCheckOf(feature), label, root));
        bucketStarts.back() = static_cast<std::uint16_t>(weights.size());
    }

    /// The whole file, with a right checksum, aligned to 8.
    [[nodiscard]] std::vector<std::uint64_t> file() const {
        constexpr std::size_t count = 3;
        std::array<SectionRecord, count> records{};
        std::size_t size = sizeof(ModelHeader) + sizeof(records);
        const auto place = [&](SectionRecord& record, SectionId id, std::size_t bytes) {
            record = {static_cast<std::uint32_t>(id), lemmaVersion, size, bytes};
            size += (bytes + 7) / 8 * 8;
        };
        place(records[0], lemmaRules, rules.size());
        place(records[1], lemmaBucketStarts, bucketStarts.size() * sizeof(bucketStarts[0]));
        place(records[2], lemmaWeights, weights.size() * sizeof(LemmaWeight));
        std::vector<std::uint64_t> words(size / 8);
        auto* bytes = reinterpret_cast<char*>(words.data());
        const auto put = [&](std::size_t at, const void* from, std::size_t length) {
            if (length != 0) std::memcpy(bytes + at, from, length);
        };
        ModelHeader header;
        header.sectionCount = count;
        header.fileSize = size;
        std::copy(language.begin(), language.end(), header.language.begin());
        put(0, &header, sizeof(header));
        put(sizeof(header), records.data(), sizeof(records));
        put(records[0].offset, rules.data(), records[0].size);
        put(records[1].offset, bucketStarts.data(), records[1].size);
        put(records[2].offset, weights.data(), records[2].size);
        header.checksum = checksumOf(std::as_bytes(std::span(words)));
        put(0, &header, sizeof(header));
        return words;
    }
};

} // namespace lexiform::linguistics
