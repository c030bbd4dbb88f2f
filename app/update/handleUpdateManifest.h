#pragma once

#include "app/AppDelegate.h"

#include <optional>
#include <string>

namespace lexiform {

/// Reads a manifest on the main thread: marks in the Help menu that this application's entry was found, and
/// offers each other version that can be downloaded. A body that is absent and a manifest of another
/// structure stop the program.
void handleUpdateManifest(const std::optional<std::string>& body, const std::string& runningVersion,
                          const AppDelegate& delegate);

} // namespace lexiform
