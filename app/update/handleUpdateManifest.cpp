#include "app/update/handleUpdateManifest.h"

#include "app/plist/readPropertyList.h"
#include "app/update/updateAlerts.h"
#include "base/present.h"

#include <string_view>
#include <variant>

namespace lexiform {

namespace {

constexpr std::string_view applicationName = "Lexiform";

const PropertyList::Dictionary& dictionaryIn(const PropertyList& entry) {
    const auto* values = std::get_if<PropertyList::Dictionary>(&entry.value);
    if (values == nullptr) fatalError("an entry of the update manifest is no dictionary");
    return *values;
}

const std::string& stringIn(const PropertyList::Dictionary& entry, std::string_view key) {
    const auto found = entry.find(key);
    if (found == entry.end()) fatalError("an entry of the update manifest lacks a key");
    const auto* text = std::get_if<std::string>(&found->second.value);
    if (text == nullptr) fatalError("a value of the update manifest is no string");
    return *text;
}

// The item is found by its first title, so that it is changed once.
void markAsChecked(const AppServices& services) {
    Menu* const menu = present(services.application).helpMenu();
    MenuItem* const item = menu != nullptr ? menu->itemWithTitle("Update not checked") : nullptr;
    if (item == nullptr) return;
    item->setState(MenuItem::State::on);
    item->setTitle("Checked for update");
}

// Any other version is an update, an older one too: the maker may take a version back. An address beside the
// maker's download site is never offered.
void reportEntry(const PropertyList::Dictionary& entry, const std::string& running,
                 const AppServices& services) {
    if (stringIn(entry, "AppName") != applicationName) return;
    markAsChecked(services);
    const std::string& version = stringIn(entry, "Version");
    const std::string& address = stringIn(entry, "URL");
    if (version == running) return;
    if (address.find(services.addresses.downloadBase) == std::string::npos) return;
    if (offerUpdate(services, version, running))
        present(services.workspace).open(present(WebAddress::parse(address)));
}

} // namespace

void handleUpdateManifest(const std::optional<std::string>& body, const std::string& runningVersion,
                          const AppDelegate& delegate) {
    const AppServices& services = delegate.services();
    const auto manifest = readPropertyList(present(body));
    if (!manifest) {
        showBadListAlert(services);
        return;
    }
    const auto* entries = std::get_if<PropertyList::Array>(&manifest->value);
    if (entries == nullptr) fatalError("the update manifest is no array");
    if (entries->empty()) showEmptyListAlert(services);
    for (const PropertyList& entry : *entries)
        reportEntry(dictionaryIn(entry), runningVersion, services);
}

} // namespace lexiform
