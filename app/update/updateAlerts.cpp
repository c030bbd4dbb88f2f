#include "app/update/updateAlerts.h"

#include "base/present.h"

namespace lexiform {

namespace {

void showError(const AppServices& services, const std::string& details) {
    const auto alert = present(services.makeAlert)();
    present(alert).setMessageText("An error occurred:");
    alert->setInformativeText(details);
    alert->setAlertStyle(Alert::Style::critical);
    alert->addButton("OK");
    alert->runModal();
}

} // namespace

void showNoVersionAlert(const AppServices& services) {
    showError(services, "Can't check for updates:\nNo app version string found.");
}

void showBadListAlert(const AppServices& services) {
    showError(services, "Error in update Property List.");
}

void showEmptyListAlert(const AppServices& services) {
    showError(services, "Update Property List has no entries.");
}

bool offerUpdate(const AppServices& services, const std::string& version, const std::string& running) {
    const auto alert = present(services.makeAlert)();
    present(alert).setMessageText("An update to this app to version " + version + " is available.");
    alert->setInformativeText(
        "You are currently running Lexiform version " + running +
        ".\nPlease choose whether to download this update now in your default browser.");
    alert->setAlertStyle(Alert::Style::informational);
    alert->addButton("Ignore");
    alert->addButton("Download");
    return alert->runModal() == Alert::Response::secondButton;
}

} // namespace lexiform
