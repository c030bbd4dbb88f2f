#pragma once

#include "app/AppServices.h"

#include <string>

namespace lexiform {

// Each shows one alert and returns when it has been answered.

void showNoVersionAlert(const AppServices& services);
void showBadListAlert(const AppServices& services);
void showEmptyListAlert(const AppServices& services);

/// Whether the user wants `version` downloaded, told that `running` is the one at work.
[[nodiscard]] bool offerUpdate(const AppServices& services, const std::string& version,
                               const std::string& running);

} // namespace lexiform
