#pragma once

#include "linguistics/file/ModelFile.h"
#include "linguistics/network/NetworkFormat.h"
#include "linguistics/tagging/WordTraits.h"
#include "linguistics/text/Hash.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <random>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace lexiform::linguistics {

/// The sections of a network with few rows and random numbers, for tests to change; `bytes` makes a file.
struct SmallNetwork {
    NetworkDimensions dimensions;
    std::vector<std::uint32_t> keys;
    std::vector<NetworkEntry> entries;
    std::vector<std::uint8_t> rows;
    std::vector<std::int8_t> gateWeights, scoreWeights;
    std::vector<std::int16_t> gateBias, scoreBias, posTransitions, nameTransitions;

    explicit SmallNetwork(std::uint32_t seed = 1) {
        dimensions.rowCounts = {4, 16, 4, listRowCount, 8, 8, 8, 8, 8, 8, 8, 8};
        dimensions.scoreShift = 10;
        lookUp("dog", {2, 1, 0});
        lookUp("oslo", {3, 2, cityNames});
        std::mt19937 random(seed);
        fill(rows, RowLayout(dimensions.rowCounts).size() * packedRowSize, random, 256, 0);
        fill(gateWeights, networkWidth * projectionSize, random, 41, -20);
        fill(scoreWeights, networkOutputs * networkLabels, random, 255, -127);
        fill(gateBias, networkGates, random, 1001, -500);
        fill(scoreBias, networkLabels, random, 201, -100);
        fill(posTransitions, (universalPosCount + 1) * universalPosCount, random, 201, -100);
        fill(nameTransitions, (nameLabelCount + 1) * nameLabelCount, random, 201, -100);
    }

    void lookUp(std::string_view normal, NetworkEntry entry) {
        std::map<std::uint32_t, NetworkEntry> all;
        for (std::size_t i = 0; i < keys.size(); ++i)
            all[keys[i]] = entries[i];
        all[static_cast<std::uint32_t>(hashOf(normal) >> 32)] = entry;
        keys.clear();
        entries.clear();
        for (const auto& [key, value] : all) {
            keys.push_back(key);
            entries.push_back(value);
        }
    }

    [[nodiscard]] std::vector<std::byte> bytes() const {
        Layout layout;
        layout.put(SectionId::network, std::vector{dimensions});
        layout.put(SectionId::networkKeys, keys);
        layout.put(SectionId::networkEntries, entries);
        layout.put(SectionId::networkRows, rows);
        layout.put(SectionId::networkGateWeights, gateWeights);
        layout.put(SectionId::networkGateBias, gateBias);
        layout.put(SectionId::networkScoreWeights, scoreWeights);
        layout.put(SectionId::networkScoreBias, scoreBias);
        layout.put(SectionId::networkPosTransitions, posTransitions);
        layout.put(SectionId::networkNameTransitions, nameTransitions);
        return layout.file();
    }

private:
    /// A model file by hand.
    struct Layout {
        std::vector<SectionRecord> records;
        std::vector<std::vector<std::byte>> contents;

        template <typename Value>
        void put(SectionId id, const std::vector<Value>& values) {
            const auto all = std::as_bytes(std::span(values));
            records.push_back({static_cast<std::uint32_t>(id), networkVersion, 0, all.size()});
            contents.emplace_back(all.begin(), all.end());
        }
        [[nodiscard]] std::vector<std::byte> file() {
            std::vector<std::byte> file(sizeof(ModelHeader) + records.size() * sizeof(SectionRecord));
            for (std::size_t i = 0; i < records.size(); ++i) {
                file.resize((file.size() + sectionAlignment - 1) / sectionAlignment * sectionAlignment);
                records[i].offset = file.size();
                file.insert(file.end(), contents[i].begin(), contents[i].end());
            }
            ModelHeader header;
            header.sectionCount = static_cast<std::uint32_t>(records.size());
            header.fileSize = file.size();
            header.language = {'e', 'n'};
            std::memcpy(file.data() + sizeof(header), records.data(), records.size() * sizeof(SectionRecord));
            std::memcpy(file.data(), &header, sizeof(header));
            header.checksum = checksumOf(file);
            std::memcpy(file.data(), &header, sizeof(header));
            return file;
        }
    };

    template <typename Value>
    static void fill(std::vector<Value>& values, std::size_t count, std::mt19937& random, int range,
                     int lowest) {
        values.resize(count);
        for (Value& value : values)
            value = static_cast<Value>(lowest + static_cast<int>(random() % static_cast<unsigned>(range)));
    }
};

} // namespace lexiform::linguistics
