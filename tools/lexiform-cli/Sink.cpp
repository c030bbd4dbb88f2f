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
    if (std::fflush(file_) != 0) note(errno);
    if (!failed()) return true;
    report(errors, std::string("cannot write the result: ") + std::strerror(failure_));
    return false;
}

void Sink::flush() {
    if (std::fwrite(pending.data(), 1, pending.size(), file_) != pending.size()) note(errno);
    pending.clear();
}

void Sink::note(int error) {
    if (!failed()) failure_ = error != 0 ? error : EIO;
}

void report(std::FILE* errors, const std::string& message) {
    std::fprintf(errors, "lexiform-cli: %s\n", message.c_str());
}

} // namespace lexiform::cli
