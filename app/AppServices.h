#pragma once

#include "ports/Alert.h"
#include "ports/Application.h"
#include "ports/Bundle.h"
#include "ports/Clock.h"
#include "ports/MainQueue.h"
#include "ports/Storyboard.h"
#include "ports/UrlSession.h"
#include "ports/UserDefaults.h"
#include "ports/Workspace.h"

#include <functional>
#include <memory>
#include <string>

namespace lexiform {

/// Where the application's maker is on the web.
struct MakerAddresses {
    std::string updateManifest; ///< the property list that names the current version
    std::string downloadBase;   ///< what the address of a download must contain; ends with a slash
    std::string updatesPage;
    std::string supportPage;
};

/// What the application asks of the desktop beside its document windows.
struct AppServices {
    std::shared_ptr<UserDefaults> defaults;
    std::shared_ptr<Clock> clock;
    std::shared_ptr<Bundle> bundle;
    std::shared_ptr<UrlSession> session;
    std::shared_ptr<MainQueue> mainQueue;
    std::function<std::shared_ptr<Alert>()> makeAlert;
    std::shared_ptr<Application> application;
    std::shared_ptr<Workspace> workspace;
    std::shared_ptr<Storyboard> storyboard;
    MakerAddresses addresses;
};

} // namespace lexiform
