#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include <unistd.h>

namespace lexiform::train {

/// A folder with files for one test; it goes away with the object.
class TextFolder {
public:
    /// `name` is the test's own, so that tests may run at the same time.
    explicit TextFolder(std::string_view name)
        : path_(std::filesystem::temp_directory_path() /
                ("lexiform-train-tests-" + std::to_string(::getpid())) / name) {
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    ~TextFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TextFolder(const TextFolder&) = delete;
    TextFolder& operator=(const TextFolder&) = delete;

    /// Writes a file of the folder; answers its path.
    std::filesystem::path write(std::string_view name, std::string_view text) const {
        const std::filesystem::path file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
        return file;
    }

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

} // namespace lexiform::train
