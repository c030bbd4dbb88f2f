#pragma once

#include <cstdio>
#include <string>

namespace lexiform::cli {

/// Collects output and passes it on to a file in large pieces.
class Sink {
public:
    explicit Sink(std::FILE* file) : file_(file) {}

    /// What has not been passed on yet; to be appended to.
    std::string pending;

    void flushIfLarge();
    [[nodiscard]] bool failed() const { return failure_ != 0; }
    /// Passes on what is left. When some of the output was lost, says so on `errors` and gives false.
    [[nodiscard]] bool finish(std::FILE* errors);

private:
    void flush();
    void note(int error);

    std::FILE* file_;
    int failure_ = 0; // the system's number of the first error
};

/// Tells a person what went wrong, on one line.
void report(std::FILE* errors, const std::string& message);

} // namespace lexiform::cli
