#pragma once

#include "app/AppServices.h"
#include "ports/ApplicationDelegateBase.h"
#include "ports/WindowController.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform {

/// The application's delegate: decides at launch whether to look for an update, and opens the side windows
/// and the maker's pages. Everything runs on the main thread.
class AppDelegate : public ApplicationDelegateBase, public std::enable_shared_from_this<AppDelegate> {
public:
    using WindowControllers = std::vector<std::shared_ptr<WindowController>>;

    // Every window of its kind that was opened so far; none is ever removed.
    WindowControllers myColours;
    WindowControllers myPalettes;
    WindowControllers myHelpWindow;

    /// Looks for an update when the last look is long enough ago, and stores the preferences as they are in
    /// force.
    void applicationDidFinishLaunching(const Notification& notification) override;
    /// Nothing is saved at the end.
    void applicationWillTerminate(const Notification& notification) override;

    /// Each opens a new window, whether or not one of its kind is open.
    void openColours(const ActionSender* sender);
    void openPalette(const ActionSender* sender);
    void openHelp(const ActionSender* sender);

    /// Each opens one page of the maker's in the user's browser.
    void openUpdates(const ActionSender* sender);
    void openSupport(const ActionSender* sender);

    /// A delegate without windows. It must be held by a `std::shared_ptr` before it is told of the launch.
    explicit AppDelegate(AppServices services);

    /// Asks for the manifest and returns; what it says is reported when it has come.
    void checkForUpdate();
    /// Shows a new window of the scene with this identifier and keeps its controller in `list`.
    void openAuxiliaryWindow(std::string_view identifier, WindowControllers& list);
    /// Whether the page could be opened does not matter.
    void openWebPage(const std::string& address);

    [[nodiscard]] const AppServices& services() const { return services_; }

private:
    AppServices services_;
};

} // namespace lexiform
