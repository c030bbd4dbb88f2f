#pragma once

#include <iostream>
#include <string>

namespace lexiform::train {

/// Tells a person why a command failed; gives its exit status.
inline int reportFault(const std::string& reason) {
    std::cerr << "lexiform-train: " << reason << '\n';
    return 1;
}

} // namespace lexiform::train
