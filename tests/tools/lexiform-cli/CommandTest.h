#pragma once

#include "linguistics/Engine.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <unistd.h>

namespace lexiform::cli {

namespace fs = std::filesystem;

/// A test of a command: a folder of its own, also beside another run of the same test, removed afterwards,
/// and what the command wrote.
class CommandTest : public testing::Test {
public:
    static std::string contentOf(const std::string& name) {
        std::ostringstream content;
        content << std::ifstream(name, std::ios::binary).rdbuf();
        return content.str();
    }

protected:
    CommandTest() {
        const auto* const info = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = fs::temp_directory_path() / (std::string("lexiform-") + info->test_suite_name() + "-" +
                                               info->name() + "-" + std::to_string(::getpid()));
        fs::create_directories(folder_);
    }
    ~CommandTest() override { fs::remove_all(folder_); }

    /// A file with this content; gives its path.
    [[nodiscard]] std::string file(const std::string& name, const std::string& bytes) const {
        std::ofstream(folder_ / name, std::ios::binary) << bytes;
        return (folder_ / name).string();
    }

    /// Runs `command` with an engine and two files, and fills `out` and `errors` from them.
    template <typename Command>
    int runWith(const Command& command) {
        const std::string outName = (folder_ / "out").string();
        const std::string errorsName = (folder_ / "errors").string();
        std::FILE* const outFile = std::fopen(outName.c_str(), "wb");
        std::FILE* const errorsFile = std::fopen(errorsName.c_str(), "wb");
        const auto engine = std::make_shared<const linguistics::Engine>(
            std::make_shared<const linguistics::ModelStore>(std::vector<fs::path>{LEXIFORM_MODELS_DIR}));
        const int status = command(engine, outFile, errorsFile);
        std::fclose(outFile);
        std::fclose(errorsFile);
        out = contentOf(outName);
        errors = contentOf(errorsName);
        return status;
    }

    std::string out;
    std::string errors;

private:
    fs::path folder_;
};

} // namespace lexiform::cli
