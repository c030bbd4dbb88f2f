#pragma once

#include <QString>

namespace lexiform::qt {

/// GTK's settings of the desktop, on the desktops of GTK. There Qt takes its appearance and font from them
/// when the program starts; what changes later only GTK itself knows. Qt has loaded it there by then; where
/// it has not, it is left alone.
class Toolkit {
public:
    Toolkit();
    ~Toolkit();
    Toolkit(const Toolkit&) = delete;
    Toolkit& operator=(const Toolkit&) = delete;

    /// Whether GTK is there; without it nothing below may be asked.
    [[nodiscard]] bool hasSettings() const { return settings_ != nullptr; }
    /// The values of settings by GTK's names for them, of the type that is asked for.
    [[nodiscard]] bool flag(const char* name) const;
    [[nodiscard]] QString text(const char* name) const;

    using Callback = void (*)(void* settings, void* property, void* data);
    /// Has `changed` called with `data` on each change of a setting, for as long as the program runs; 0 if
    /// GTK does not know how, else a number by which `stopTelling` ends it.
    [[nodiscard]] unsigned long tellOfChanges(const char* signal, Callback changed, void* data) const;
    void stopTelling(unsigned long connection) const;

private:
    template <typename Function>
    [[nodiscard]] Function resolve(const char* name) const;

    void* library_;
    void* settings_ = nullptr;
};

} // namespace lexiform::qt
