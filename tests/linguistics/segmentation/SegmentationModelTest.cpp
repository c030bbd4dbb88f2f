#include "linguistics/segmentation/SegmentationModel.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace lexiform::linguistics {
namespace {

struct Section {
    SegmentationSection id;
    std::vector<std::byte> bytes;
    std::uint32_t version = segmentationVersion;
};

template <typename Value>
std::vector<std::byte> bytesOf(const std::vector<Value>& values) {
    const auto bytes = std::as_bytes(std::span(values));
    return {bytes.begin(), bytes.end()};
}

// A model file of nothing but these sections.
std::vector<std::byte> fileOf(const std::vector<Section>& sections) {
    std::vector<std::byte> file(sizeof(ModelHeader) + sections.size() * sizeof(SectionRecord));
    std::size_t place = sizeof(ModelHeader);
    for (const Section& section : sections) {
        file.resize((file.size() + sectionAlignment - 1) / sectionAlignment * sectionAlignment);
        const SectionRecord record{static_cast<std::uint32_t>(section.id), section.version, file.size(),
                                   section.bytes.size()};
        std::memcpy(file.data() + place, &record, sizeof(record));
        place += sizeof(record);
        file.insert(file.end(), section.bytes.begin(), section.bytes.end());
    }
    ModelHeader header;
    header.sectionCount = static_cast<std::uint32_t>(sections.size());
    header.fileSize = file.size();
    header.language = {'x', 'x'};
    std::memcpy(file.data(), &header, sizeof(header));
    header.checksum = checksumOf(file);
    std::memcpy(file.data(), &header, sizeof(header));
    return file;
}

std::string faultIn(const std::vector<Section>& sections) {
    const std::vector<std::byte> bytes = fileOf(sections);
    const auto file = ModelFile::over(bytes);
    if (!file.succeeded()) return file.fault();
    const auto model = SegmentationModel::over(file.value());
    return model.succeeded() ? "" : model.fault();
}

const std::vector<std::byte> weights(1024);

TEST(SegmentationModel, leavesEverythingToTheRulesWithoutSections) {
    const std::vector<std::byte> bytes = fileOf({});
    const auto file = ModelFile::over(bytes);
    ASSERT_TRUE(file.succeeded());
    const auto model = SegmentationModel::over(file.value());
    ASSERT_TRUE(model.succeeded());
    EXPECT_EQ(model.value().learned().tokenEnds, nullptr);
    EXPECT_EQ(model.value().learned().sentenceEnds, nullptr);
    EXPECT_TRUE(model.value().learned().abbreviations.empty());
}

TEST(SegmentationModel, readsWhatThereIs) {
    const std::vector<std::byte> bytes =
        fileOf({{SegmentationSection::tokenEnds, weights},
                {SegmentationSection::abbreviations, bytesOf<std::uint32_t>({3, 17, 90})}});
    const auto file = ModelFile::over(bytes);
    ASSERT_TRUE(file.succeeded());
    const auto model = SegmentationModel::over(file.value());
    ASSERT_TRUE(model.succeeded()) << model.fault();
    EXPECT_NE(model.value().learned().tokenEnds, nullptr);
    EXPECT_TRUE(model.value().learned().abbreviations.holds(17));
    EXPECT_FALSE(model.value().learned().abbreviations.holds(18));
}

TEST(SegmentationModel, refusesATableOfWeightsThatIsNoPowerOfTwo) {
    EXPECT_EQ(faultIn({{SegmentationSection::tokenEnds, std::vector<std::byte>(1000)}}),
              "section 64 has a wrong number of weights");
    EXPECT_EQ(faultIn({{SegmentationSection::characters, std::vector<std::byte>(128)}}),
              "section 67 has a wrong number of weights");
    EXPECT_EQ(faultIn({{SegmentationSection::spaceJoins, std::vector<std::byte>(std::size_t{1} << 21)}}),
              "section 66 has a wrong number of weights");
}

TEST(SegmentationModel, refusesHashesOutOfOrder) {
    EXPECT_EQ(faultIn({{SegmentationSection::commonWords, bytesOf<std::uint32_t>({9, 3})}}),
              "section 69 is out of order");
}

TEST(SegmentationModel, refusesABrokenHash) {
    EXPECT_EQ(faultIn({{SegmentationSection::endings, std::vector<std::byte>(7)}}),
              "section 70 has a wrong size");
}

TEST(SegmentationModel, refusesTooFewBitsForPairs) {
    EXPECT_EQ(faultIn({{SegmentationSection::endingPairs, std::vector<std::byte>(100)}}),
              "section 71 has a wrong size");
}

TEST(SegmentationModel, refusesAnotherVersion) {
    EXPECT_NE(faultIn({{SegmentationSection::sentenceEnds, weights, segmentationVersion + 1}}), "");
}

} // namespace
} // namespace lexiform::linguistics
