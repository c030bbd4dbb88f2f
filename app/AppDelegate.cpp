#include "app/AppDelegate.h"

#include "base/present.h"

#include <utility>

namespace lexiform {

AppDelegate::AppDelegate(AppServices services) : services_(std::move(services)) {}

void AppDelegate::applicationWillTerminate(const Notification& /*notification*/) {}

void AppDelegate::openColours(const ActionSender* /*sender*/) {
    openAuxiliaryWindow("Colour Window Controller", myColours);
}

void AppDelegate::openPalette(const ActionSender* /*sender*/) {
    openAuxiliaryWindow("Palette Window Controller", myPalettes);
}

void AppDelegate::openHelp(const ActionSender* /*sender*/) {
    openAuxiliaryWindow("Help Window Controller", myHelpWindow);
}

void AppDelegate::openUpdates(const ActionSender* /*sender*/) {
    openWebPage(services_.addresses.updatesPage);
}

void AppDelegate::openSupport(const ActionSender* /*sender*/) {
    openWebPage(services_.addresses.supportPage);
}

void AppDelegate::openAuxiliaryWindow(std::string_view identifier, WindowControllers& list) {
    const auto scene = present(services_.storyboard).instantiateController(identifier);
    auto controller = std::dynamic_pointer_cast<WindowController>(scene);
    if (!controller) fatalError("a side window's scene is no window");
    controller->showWindow(this);
    list.push_back(std::move(controller));
}

void AppDelegate::openWebPage(const std::string& address) {
    present(services_.workspace).open(present(WebAddress::parse(address)));
}

} // namespace lexiform
