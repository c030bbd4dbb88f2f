#include "tools/lexiform-cli/Sink.h"

#include <cerrno>
#include <cstring>

namespace lexiform::cli {

namespace {

constexpr std::size_t largePiece = 1U << 16U;

} // namespace

void Sink::flushIfLarge() {
    if (pending.size() >= largePiece) flush();
}

bool Sink::finish(std::FILE* errors) {
    flush();
    if (std::fflush(file_) == 0 && !failed_) return true;
    report(errors, std::string("cannot write the result: ") + std::strerror(errno));
    return false;
}

void Sink::flush() {
    if (std::fwrite(pending.data(), 1, pending.size(), file_) != pending.size()) failed_ = true;
    pending.clear();
}

void report(std::FILE* errors, const std::string& message) {
    std::fprintf(errors, "lexiform-cli: %s\n", message.c_str());
}

} // namespace lexiform::cli
