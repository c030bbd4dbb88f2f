#include "platform/linguistics/ModelMessage.h"

#include "platform/linguistics/modelFolders.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace lexiform {
namespace {

TEST(ModelMessage, namesTheFileAndTheReason) {
    EXPECT_EQ(englishModelMessage({.file = "/models/en.lxm", .reason = "the file is truncated"}),
              "The English model cannot be used (/models/en.lxm): the file is truncated.");
}

TEST(ModelMessage, namesNoFileWhereNoneWasFound) {
    EXPECT_EQ(englishModelMessage({.file = {}, .reason = "no folder holds it", .missing = true}),
              "The English model cannot be used: no folder holds it.");
}

TEST(ModelFolders, areTheOneThatTheEnvironmentNamesAndTheOneBesideTheExecutable) {
    setenv("LEXIFORM_MODELS", "/my/models", 1);
    const auto named = modelFolders();
    unsetenv("LEXIFORM_MODELS");
    const auto own = modelFolders();
    const auto beside =
        std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path() / "share/lexiform/models";
    EXPECT_EQ(named, (std::vector<std::filesystem::path>{"/my/models", beside}));
    EXPECT_EQ(own, (std::vector<std::filesystem::path>{beside}));
}

} // namespace
} // namespace lexiform
