#include "app/AppDelegate.h"

#include "base/present.h"

namespace lexiform {

namespace {

constexpr std::string_view noCheckKey = "noUpdateCheck";
constexpr std::string_view intervalKey = "updateCheckInt";
constexpr std::string_view lastCheckKey = "dateLastUpdateCheck";
constexpr double standardInterval = 12.0 * 60 * 60;

// Less than a second stands for an interval that was never stored, or for nonsense.

double intervalInForce(double stored) {
    constexpr double shortest = 1;
    return stored < shortest ? standardInterval : stored;
}

} // namespace

void AppDelegate::applicationDidFinishLaunching(const Notification& /*notification*/) {
    UserDefaults& defaults = present(services_.defaults);
    const bool noCheck = defaults.boolForKey(noCheckKey);
    const double lastCheck = defaults.doubleForKey(lastCheckKey);
    const double interval = intervalInForce(defaults.doubleForKey(intervalKey));
    const Clock& clock = present(services_.clock);
    if (clock.secondsSinceReferenceDate() - lastCheck > interval && !noCheck) {
        checkForUpdate();
        // A check counts as made once it is started, whatever comes of it.
        defaults.setDouble(clock.secondsSinceReferenceDate(), lastCheckKey);
    }
    // Both are stored at every launch, so that users find them with their working values.
    defaults.setBool(noCheck, noCheckKey);
    defaults.setDouble(interval, intervalKey);
}

} // namespace lexiform
