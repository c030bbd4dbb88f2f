#pragma once

#include "platform/qt/theme/Toolkit.h"

#include <QFont>
#include <QObject>

#include <optional>

namespace lexiform::qt {

/// The font that GTK's name for it means, such as "Noto Sans 11"; nothing for a name without a size. What the
/// name leaves open is as in `like`.
[[nodiscard]] std::optional<QFont> fontNamed(const QString& name, const QFont& like);

/// Gives the program the font that a person chooses for the desktop while the program runs, on the desktops
/// of GTK; elsewhere it does nothing, for there Qt follows by itself. The font at the start is Qt's to find.
class ToolkitFont : public QObject {
    Q_OBJECT

public:
    ToolkitFont();
    ~ToolkitFont() override;
    ToolkitFont(const ToolkitFont&) = delete;
    ToolkitFont& operator=(const ToolkitFont&) = delete;

private:
    static void takeChange(void* settings, void* property, void* self);
    void follow() const;

    Toolkit toolkit_;
    unsigned long connection_ = 0;
};

} // namespace lexiform::qt
