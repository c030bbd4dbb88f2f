#include "tools/lexiform-cli/inputNames.h"

namespace lexiform::cli {

std::vector<std::string> inputNames(const std::vector<std::string>& named) {
    return named.empty() ? std::vector<std::string>{standardInput} : named;
}

} // namespace lexiform::cli
