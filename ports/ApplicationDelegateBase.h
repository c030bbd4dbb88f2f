#pragma once

namespace lexiform {

/// What can send a command.
class ActionSender {
public:
    virtual ~ActionSender() = default;
};

/// What the desktop tells with an event of the application.
struct Notification {};

/// The base of whoever the desktop tells of the application's events, on the main thread.
class ApplicationDelegateBase : public ActionSender {
public:
    /// The application is ready; documents that were asked for are open.
    virtual void applicationDidFinishLaunching(const Notification& notification) = 0;
    /// The application is about to end; nothing more happens afterwards.
    virtual void applicationWillTerminate(const Notification& notification) = 0;
};

} // namespace lexiform
