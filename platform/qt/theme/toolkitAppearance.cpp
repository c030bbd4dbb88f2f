#include "platform/qt/theme/toolkitAppearance.h"

#include <QRegularExpression>
#include <QString>

#include <dlfcn.h>

namespace lexiform::qt {

namespace {

// On the desktops of GTK, Qt takes its appearance from GTK's settings when the program starts, and tells of
// a change, but its palettes stay as they were: only GTK itself knows. Qt has loaded it there by then; where
// it has not, it is left alone.
class Toolkit {
public:
    Toolkit() : library_(dlopen("libgtk-3.so.0", RTLD_LAZY | RTLD_NOLOAD)) {
        if (library_ == nullptr) return;
        getProperty_ = resolve<GetProperty>("g_object_get");
        free_ = resolve<Free>("g_free");
        const auto defaultSettings = resolve<DefaultSettings>("gtk_settings_get_default");
        if (defaultSettings != nullptr && getProperty_ != nullptr && free_ != nullptr)
            settings_ = defaultSettings();
    }
    ~Toolkit() {
        if (library_ != nullptr) dlclose(library_);
    }
    Toolkit(const Toolkit&) = delete;
    Toolkit& operator=(const Toolkit&) = delete;

    [[nodiscard]] bool hasSettings() const { return settings_ != nullptr; }

    [[nodiscard]] bool prefersDark() const {
        int value = 0;
        getProperty_(settings_, "gtk-application-prefer-dark-theme", &value, nullptr);
        return value != 0;
    }

    [[nodiscard]] QString themeName() const {
        char* value = nullptr;
        getProperty_(settings_, "gtk-theme-name", &value, nullptr);
        QString name = QString::fromUtf8(value);
        free_(value);
        return name;
    }

private:
    using DefaultSettings = void* (*)();
    using GetProperty = void (*)(void* object, const char* name, ...);
    using Free = void (*)(void*);

    template <typename Function>
    [[nodiscard]] Function resolve(const char* name) const {
        return reinterpret_cast<Function>(dlsym(library_, name));
    }

    void* library_;
    void* settings_ = nullptr;
    GetProperty getProperty_ = nullptr;
    Free free_ = nullptr;
};

bool isDarkTheme(const QString& name) {
    static const QRegularExpression dark(QStringLiteral("[:-]dark"),
                                         QRegularExpression::CaseInsensitiveOption);
    return name.contains(dark);
}

} // namespace

// The order is Qt's at the start of a program.
std::optional<Appearance> toolkitAppearance() {
    const Toolkit toolkit;
    if (!toolkit.hasSettings()) return std::nullopt;
    const QString forced = qEnvironmentVariable("GTK_THEME");
    const bool isDark =
        forced.isEmpty() ? toolkit.prefersDark() || isDarkTheme(toolkit.themeName()) : isDarkTheme(forced);
    return isDark ? Appearance::dark : Appearance::light;
}

} // namespace lexiform::qt
