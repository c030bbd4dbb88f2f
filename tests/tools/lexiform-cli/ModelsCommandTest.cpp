#include "tools/lexiform-cli/ModelsCommand.h"

#include "tests/tools/lexiform-cli/CommandTest.h"

#include <string>

namespace lexiform::cli {
namespace {

class ModelsCommand : public CommandTest {
protected:
    int list(const fs::path& folder) {
        return runWith([&](const auto&, std::FILE* outFile, std::FILE* errorsFile) {
            return listModels(linguistics::ModelStore({folder}), outFile, errorsFile);
        });
    }
};

TEST_F(ModelsCommand, listsEachLanguageWithTheSizeOfItsModel) {
    EXPECT_EQ(list(LEXIFORM_MODELS_DIR), 0);
    EXPECT_TRUE(out.starts_with("language  size      licence       figures\n"));
    const std::string size =
        std::to_string((fs::file_size(fs::path(LEXIFORM_MODELS_DIR) / "en.lxm") + 1023) / 1024) + " KB";
    EXPECT_NE(out.find("\nen        " + size), std::string::npos);
}

TEST_F(ModelsCommand, tellsOfADamagedModelAndListsTheOthers) {
    const fs::path damaged = file("xx.lxm", "LXFMODEL");
    EXPECT_EQ(list(damaged.parent_path()), 1);
    EXPECT_EQ(errors, "lexiform-cli: " + damaged.string() + ": the file is too short for a model\n");
}

TEST_F(ModelsCommand, saysThatThereAreNone) {
    EXPECT_EQ(list("/no/such/folder"), 1);
    EXPECT_EQ(out, "");
    EXPECT_EQ(errors, "lexiform-cli: there are no models\n");
}

} // namespace
} // namespace lexiform::cli
