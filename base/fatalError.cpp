#include "base/fatalError.h"

#include <cstdio>
#include <cstdlib>

namespace lexiform {

void fatalError(std::string_view what) {
    // Unbuffered and without allocation: the heap may be what is broken.
    std::fputs("fatal error: ", stderr);
    std::fwrite(what.data(), 1, what.size(), stderr);
    std::fputc('\n', stderr);
    std::abort();
}

} // namespace lexiform
