#pragma once

#include <string_view>

namespace lexiform {

/// Stops the program because an invariant is broken; `what` goes to standard error for whoever
/// reads the core dump. Never for a failure that a user can meet: those are an `Outcome`.
[[noreturn]] void fatalError(std::string_view what);

} // namespace lexiform
