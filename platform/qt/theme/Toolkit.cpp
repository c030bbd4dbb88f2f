#include "platform/qt/theme/Toolkit.h"

#include <dlfcn.h>

namespace lexiform::qt {

Toolkit::Toolkit() : library_(dlopen("libgtk-3.so.0", RTLD_LAZY | RTLD_NOLOAD)) {
    if (library_ == nullptr) return;
    using DefaultSettings = void* (*)();
    if (const auto defaultSettings = resolve<DefaultSettings>("gtk_settings_get_default"))
        settings_ = defaultSettings();
}

Toolkit::~Toolkit() {
    if (library_ != nullptr) dlclose(library_);
}

bool Toolkit::flag(const char* name) const {
    using GetProperty = void (*)(void* object, const char* name, ...);
    int value = 0;
    if (const auto get = resolve<GetProperty>("g_object_get")) get(settings_, name, &value, nullptr);
    return value != 0;
}

QString Toolkit::text(const char* name) const {
    using GetProperty = void (*)(void* object, const char* name, ...);
    using Free = void (*)(void*);
    const auto get = resolve<GetProperty>("g_object_get");
    const auto free = resolve<Free>("g_free");
    if (get == nullptr || free == nullptr) return {};
    char* value = nullptr;
    get(settings_, name, &value, nullptr);
    QString text = QString::fromUtf8(value);
    free(value);
    return text;
}

unsigned long Toolkit::tellOfChanges(const char* signal, Callback changed, void* data) const {
    using Connect =
        unsigned long (*)(void* object, const char* signal, Callback, void* data, void* destroy, int flags);
    const auto connect = resolve<Connect>("g_signal_connect_data");
    return connect == nullptr ? 0 : connect(settings_, signal, changed, data, nullptr, 0);
}

void Toolkit::stopTelling(unsigned long connection) const {
    using Disconnect = void (*)(void* object, unsigned long connection);
    if (const auto disconnect = resolve<Disconnect>("g_signal_handler_disconnect"))
        disconnect(settings_, connection);
}

template <typename Function>
Function Toolkit::resolve(const char* name) const {
    return reinterpret_cast<Function>(dlsym(library_, name));
}

} // namespace lexiform::qt
