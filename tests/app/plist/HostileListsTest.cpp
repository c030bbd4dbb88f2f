#include "app/plist/readPropertyList.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace lexiform {
namespace {

const std::filesystem::path folder = LEXIFORM_SOURCE_DIR "/tests/app/plist/hostile";

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(HostileLists, areNone) {
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        EXPECT_FALSE(readPropertyList(contentOf(entry.path()))) << entry.path();
        ++count;
    }
    EXPECT_GE(count, std::size_t{60});
}

TEST(HostileLists, areSetApartFromListsOfAWrongShape) {
    EXPECT_TRUE(readPropertyList("<plist><dict/></plist>"));
    EXPECT_TRUE(readPropertyList("{ AppName = 1; }"));
    EXPECT_TRUE(readPropertyList("( one, ( two ) )"));
}

} // namespace
} // namespace lexiform
