#pragma once

#include "linguistics/model/ModelStore.h"

#include <cstdio>

namespace lexiform::cli {

/// Lists the model files of `models`, a line each in columns: language, size, licence and figures. A file
/// that cannot be used is told on `errors`. Gives the exit status: 0, or 1 when a file cannot be used or
/// there is none.
[[nodiscard]] int listModels(const linguistics::ModelStore& models, std::FILE* out, std::FILE* errors);

} // namespace lexiform::cli
