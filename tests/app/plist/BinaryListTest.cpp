#include "tests/app/plist/support/BinaryList.h"
#include "app/plist/BinaryTrailer.h"
#include "app/plist/limits.h"
#include "app/plist/readPropertyList.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace lexiform::plist {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

std::optional<PropertyList> readObject(const std::vector<int>& bytes) {
    return readPropertyList(binaryListOf({bytesOf(bytes)}));
}

/// An array that refers to each of these objects, below 256.
std::string arrayOf(const std::vector<int>& references) {
    return bytesOf({0xAF, 0x11}) + bigEndianOf(references.size(), 2) + bytesOf(references);
}

TEST(BinaryList, readsTruthValues) {
    EXPECT_EQ(readObject({0x08}), PropertyList{false});
    EXPECT_EQ(readObject({0x09}), PropertyList{true});
}

TEST(BinaryList, readsShortIntegersWithoutASign) {
    EXPECT_EQ(readObject({0x10, 0xFF}), PropertyList{std::int64_t{255}});
    EXPECT_EQ(readObject({0x11, 0xFF, 0xFE}), PropertyList{std::int64_t{0xFFFE}});
    EXPECT_EQ(readObject({0x12, 0xFF, 0, 0, 1}), PropertyList{std::int64_t{0xFF000001}});
}

TEST(BinaryList, readsLongIntegersWithASign) {
    EXPECT_EQ(readObject({0x13, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE}),
              PropertyList{std::int64_t{-2}});
    const std::string zeros(8, '\0');
    const std::string ones(8, '\xFF');
    EXPECT_EQ(readPropertyList(binaryListOf({"\x14" + zeros + bigEndianOf(7, 8)})),
              PropertyList{std::int64_t{7}});
    EXPECT_EQ(readPropertyList(binaryListOf({"\x14" + ones + ones})), PropertyList{std::int64_t{-1}});
    EXPECT_FALSE(readPropertyList(binaryListOf({"\x14" + zeros + ones})));
    EXPECT_FALSE(readPropertyList(binaryListOf({"\x14" + ones + zeros})));
}

TEST(BinaryList, readsRealNumbersOfBothSizes) {
    EXPECT_EQ(readObject({0x22, 0x3F, 0xC0, 0, 0}), PropertyList{1.5});
    EXPECT_EQ(readObject({0x23, 0xC0, 0x04, 0, 0, 0, 0, 0, 0}), PropertyList{-2.5});
    EXPECT_FALSE(readObject({0x21, 0x3F, 0xC0}));
}

TEST(BinaryList, readsFiniteDates) {
    EXPECT_EQ(readObject({0x33, 0x40, 0xF5, 0x18, 0, 0, 0, 0, 0}), (PropertyList{PropertyDate{86400}}));
    EXPECT_FALSE(readObject({0x33, 0x7F, 0xF0, 0, 0, 0, 0, 0, 0}));
    EXPECT_FALSE(readObject({0x32, 0, 0, 0, 0}));
}

TEST(BinaryList, readsDataAndStrings) {
    EXPECT_EQ(readObject({0x43, 0, 0xFF, 7}), (PropertyList{PropertyData{bytesOf({0, 0xFF, 7})}}));
    EXPECT_EQ(readObject({0x52, 'a', 'b'}), PropertyList{"ab"});
    EXPECT_EQ(readObject({0x62, 0x20, 0xAC, 0, 'b'}), PropertyList{"\xE2\x82\xAC"
                                                                   "b"});
    EXPECT_EQ(readObject({0x62, 0xD8, 0x3D, 0xDE, 0x00}), PropertyList{"\xF0\x9F\x98\x80"});
    EXPECT_FALSE(readObject({0x51, 0xE9}));
    EXPECT_FALSE(readObject({0x61, 0xD8, 0x3D}));
    EXPECT_FALSE(readObject({0x61, 0xDE, 0x00}));
}

TEST(BinaryList, readsCountsThatFollow) {
    const std::string text(300, 'a');
    EXPECT_EQ(readPropertyList(binaryListOf({"\x5F\x11" + bigEndianOf(300, 2) + text})), PropertyList{text});
    EXPECT_EQ(readPropertyList(binaryListOf({"\x5F\x13" + bigEndianOf(300, 8) + text})), PropertyList{text});
    EXPECT_FALSE(readPropertyList(binaryListOf({"\x5F\x21" + bigEndianOf(300, 2) + text})));
    EXPECT_FALSE(readPropertyList(binaryListOf({"\x5F\x11" + bigEndianOf(301, 2) + text})));
    EXPECT_FALSE(readPropertyList(
        binaryListOf({"\x6F\x13" + bigEndianOf(std::numeric_limits<std::uint64_t>::max(), 8) + text})));
}

TEST(BinaryList, readsIdentifiersAsIntegers) {
    EXPECT_EQ(readObject({0x81, 1, 2}), PropertyList{std::int64_t{258}});
    EXPECT_EQ(readObject({0x88, 0, 0, 0, 0, 0, 0, 0, 0, 5}), PropertyList{std::int64_t{5}});
    EXPECT_FALSE(readObject({0x87, 0x80, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_FALSE(readObject({0x88, 1, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(BinaryList, readsContainersAndWhatTheyShare) {
    const std::string list = binaryListOf({bytesOf({0xD2, 1, 2, 3, 3}),
                                           "\x51"
                                           "a",
                                           "\x51"
                                           "b",
                                           bytesOf({0xA2, 4, 4}), "\x09"});
    const PropertyList shared{Array{PropertyList{true}, PropertyList{true}}};
    EXPECT_EQ(readPropertyList(list), (PropertyList{Dictionary{{"a", shared}, {"b", shared}}}));
    EXPECT_EQ(readObject({0xA0}), PropertyList{Array{}});
    EXPECT_EQ(readObject({0xD0}), PropertyList{Dictionary{}});
}

TEST(BinaryList, letsTheLastOfEqualKeysWin) {
    EXPECT_EQ(readPropertyList(binaryListOf({bytesOf({0xD2, 1, 1, 2, 3}),
                                             "\x51"
                                             "a",
                                             "\x08", "\x09"})),
              (PropertyList{Dictionary{{"a", PropertyList{true}}}}));
}

TEST(BinaryList, readsOffsetsAndReferencesOfEveryWidth) {
    for (std::size_t width = 1; width <= 8; ++width) {
        const std::vector<std::string> objects = {"\x09", "\xA1" + bigEndianOf(0, width)};
        EXPECT_EQ(readPropertyList(binaryListOf(objects, {width, width, 1})),
                  (PropertyList{Array{PropertyList{true}}}))
            << width;
    }
}

TEST(BinaryList, refusesKindsThatOnlyArchivesHave) {
    for (const int kind : {0x00, 0x0F, 0x07, 0x70, 0x90, 0xB0, 0xC0, 0xE0, 0xF0})
        EXPECT_FALSE(readObject({kind})) << kind;
}

TEST(BinaryList, refusesKeysThatAreNoStrings) {
    EXPECT_FALSE(readPropertyList(binaryListOf({bytesOf({0xD1, 1, 1}), "\x09"})));
}

TEST(BinaryList, refusesATrailerThatDoesNotFillTheList) {
    const std::string list = binaryListOf({"\x09"});
    ASSERT_TRUE(readPropertyList(list));
    for (std::size_t size = binaryMark.size(); size < list.size(); ++size)
        EXPECT_FALSE(readPropertyList(list.substr(0, size))) << size;
    EXPECT_FALSE(readPropertyList(list + "\n"));
}

TEST(BinaryList, refusesAnArrayThatHoldsItself) {
    EXPECT_FALSE(readObject({0xA1, 0}));
    EXPECT_FALSE(readPropertyList(binaryListOf({bytesOf({0xA2, 1, 1}), bytesOf({0xA2, 0, 0})})));
}

TEST(BinaryList, refusesContainersThatAreTooDeep) {
    const auto nested = [](int depth) {
        std::vector<std::string> objects;
        for (int i = 1; i < depth; ++i)
            objects.push_back(bytesOf({0xA1, i}));
        objects.push_back(bytesOf({0xA0}));
        return binaryListOf(objects);
    };
    EXPECT_TRUE(readPropertyList(nested(static_cast<int>(deepestContainer))));
    EXPECT_FALSE(readPropertyList(nested(static_cast<int>(deepestContainer) + 1)));
}

TEST(BinaryList, refusesSharingThatUnpacksToTooManyObjects) {
    std::vector<std::string> objects;
    for (int i = 1; i <= 40; ++i)
        objects.push_back(bytesOf({0xA2, i, i}));
    objects.push_back("\x09");
    EXPECT_FALSE(readPropertyList(binaryListOf(objects)));
}

TEST(BinaryList, bearsOnlySoMuchSharingForItsSize) {
    const auto doubled = [](int times) {
        std::vector<std::string> objects;
        for (int i = 1; i <= times; ++i)
            objects.push_back(bytesOf({0xA2, i, i}));
        objects.push_back("\x09");
        return binaryListOf(objects);
    };
    EXPECT_TRUE(readPropertyList(doubled(12)));
    EXPECT_FALSE(readPropertyList(doubled(15)));
}

TEST(BinaryList, refusesCountsThatOverflow) {
    EXPECT_FALSE(readPropertyList(binaryListOf({"\x6F\x13" + bigEndianOf(std::uint64_t{1} << 63U, 8)})));
    EXPECT_FALSE(
        readPropertyList(binaryListOf({"\xAF\x13" + bigEndianOf(std::uint64_t{1} << 63U, 8)}, {1, 2})));
}

TEST(BinaryList, refusesATableThatHoldsPartOfAnOffset) {
    std::string list = binaryListOf({"\x09"}, {2, 1});
    ASSERT_TRUE(readPropertyList(list));
    EXPECT_FALSE(readPropertyList(list.insert(list.size() - 32, 1, '\0')));
}

TEST(BinaryList, refusesSharingThatUnpacksToTooManyBytes) {
    constexpr std::size_t size = mostContentBytes / 64;
    const std::string text = "\x4F\x12" + bigEndianOf(size, 4) + std::string(size, 'a');
    const auto repeated = [&](std::size_t count) {
        return binaryListOf({arrayOf(std::vector<int>(count, 1)), text});
    };
    EXPECT_TRUE(readPropertyList(repeated(64)));
    EXPECT_FALSE(readPropertyList(repeated(65)));
}

} // namespace
} // namespace lexiform::plist
