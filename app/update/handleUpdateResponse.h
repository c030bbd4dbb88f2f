#pragma once

#include "app/AppDelegate.h"
#include "ports/UrlSession.h"

#include <memory>
#include <optional>
#include <string>

namespace lexiform {

/// Takes what the manifest's address answered, on the session's thread. An answer that can be a manifest goes
/// on to the main thread; any other ends the check without a word.
void handleUpdateResponse(std::optional<std::string> body, const std::optional<UrlResponse>& response,
                          const std::optional<UrlError>& error, const std::string& runningVersion,
                          const std::shared_ptr<AppDelegate>& delegate);

} // namespace lexiform
