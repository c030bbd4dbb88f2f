#include "linguistics/tagging/ClassifierWords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace lexiform::linguistics {
namespace {

/// A model file of this one section.
std::vector<std::byte> fileWith(const std::string& lines) {
    const std::size_t start = sizeof(ModelHeader) + sizeof(SectionRecord);
    std::vector<std::byte> bytes(start + lines.size());
    const SectionRecord record{static_cast<std::uint32_t>(SectionId::classifiers), classifierVersion, start,
                               lines.size()};
    ModelHeader header;
    header.sectionCount = 1;
    header.fileSize = bytes.size();
    header.language = {'z', 'h'};
    std::memcpy(bytes.data(), &header, sizeof(header));
    std::memcpy(bytes.data() + sizeof(header), &record, sizeof(record));
    std::memcpy(bytes.data() + start, lines.data(), lines.size());
    header.checksum = checksumOf(bytes);
    std::memcpy(bytes.data(), &header, sizeof(header));
    return bytes;
}

Outcome<ClassifierWords, std::string> read(const std::vector<std::byte>& bytes) {
    const auto file = ModelFile::over(bytes);
    if (!file.succeeded()) return file.fault();
    return ClassifierWords::over(file.value());
}

TEST(ClassifierWords, holdTheWordsOfTheirLines) {
    const auto bytes = fileWith("个\n本\n");
    const auto words = read(bytes);
    ASSERT_TRUE(words.succeeded()) << words.fault();
    EXPECT_TRUE(words.value().holds("本"));
    EXPECT_FALSE(words.value().holds("书"));
    EXPECT_FALSE(words.value().holds(""));
}

TEST(ClassifierWords, areRefusedWhenTheyAreNoOrderedLines) {
    EXPECT_EQ(read(fileWith("本\n个\n")).fault(), "the classifiers are out of order");
    EXPECT_EQ(read(fileWith("个\n本")).fault(), "the classifiers are not lines of words");
    EXPECT_EQ(read(fileWith("\n")).fault(), "the classifiers are not lines of words");
}

} // namespace
} // namespace lexiform::linguistics
