#pragma once

#include "ports/Workspace.h"

#include <QDesktopServices>
#include <QUrl>

namespace lexiform::qt {

/// Hands addresses to the desktop's default programs.
class QtWorkspace : public Workspace {
public:
    bool open(const WebAddress& address) override {
        return QDesktopServices::openUrl(QUrl(QString::fromStdString(address.string())));
    }
};

} // namespace lexiform::qt
