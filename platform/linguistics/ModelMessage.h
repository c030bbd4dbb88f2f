#pragma once

#include "linguistics/file/ModelFault.h"

#include <string>

namespace lexiform {

/// One sentence for a person: why words of English will not be told apart.
[[nodiscard]] std::string englishModelMessage(const linguistics::ModelFault& fault);

} // namespace lexiform
