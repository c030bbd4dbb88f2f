#include "tools/lexiform-cli/InputText.h"

#include "base/Unicode.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>

namespace lexiform::cli {

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

InputFault systemFault(const std::string& name, int error) {
    return {name + ": " + std::strerror(error)};
}

/// The error number, should reading fail before the end.
std::optional<int> readAll(std::FILE* file, std::string& bytes) {
    std::array<char, 1U << 16U> buffer{};
    errno = 0;
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), file))
        bytes.append(buffer.data(), count);
    if (std::ferror(file) != 0) return errno;
    return std::nullopt;
}

Outcome<std::string, InputFault> checked(const std::string& name, std::string bytes) {
    if (const auto offset = firstInvalidUtf8(bytes))
        return InputFault{name + ": not UTF-8: the byte at offset " + std::to_string(*offset) +
                          " starts no character"};
    return bytes;
}

} // namespace

std::vector<std::string> inputNames(const std::vector<std::string>& named) {
    return named.empty() ? std::vector<std::string>{standardInput} : named;
}

Outcome<std::string, InputFault> readText(const std::string& name) {
    std::string bytes;
    if (name == standardInput) {
        if (const auto error = readAll(stdin, bytes)) return systemFault("standard input", *error);
        return checked("standard input", std::move(bytes));
    }
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(name.c_str(), "rb"));
    if (!file) return systemFault(name, errno);
    if (const auto error = readAll(file.get(), bytes)) return systemFault(name, *error);
    return checked(name, std::move(bytes));
}

} // namespace lexiform::cli
