#include "app/AppDelegate.h"
#include "app/update/handleUpdateResponse.h"
#include "app/update/updateAlerts.h"
#include "base/present.h"

#include <utility>

namespace lexiform {

namespace {

// Nothing when the program does not say its version. A version that is no text is a fault of the build.
std::optional<std::string> versionIn(const InfoDictionary& information) {
    const auto entry = information.find("CFBundleShortVersionString");
    if (entry == information.end()) return std::nullopt;
    const auto* version = std::any_cast<std::string>(&entry->second);
    if (version == nullptr) fatalError("the version of the bundle is no string");
    return *version;
}

} // namespace

void AppDelegate::checkForUpdate() {
    const auto information = present(services_.bundle).infoDictionary();
    // A program that says nothing of itself is no installed one and has no updates.
    if (!information || information->empty()) return;
    const auto version = versionIn(*information);
    if (!version) {
        showNoVersionAlert(services_);
        return;
    }
    const WebAddress manifest = present(WebAddress::parse(services_.addresses.updateManifest));
    const auto task = present(services_.session)
                          .dataTask(manifest, [running = *version, delegate = shared_from_this()](
                                                  std::optional<std::string> body, const auto& response,
                                                  const auto& error) {
                              handleUpdateResponse(std::move(body), response, error, running, delegate);
                          });
    present(task).resume();
}

} // namespace lexiform
