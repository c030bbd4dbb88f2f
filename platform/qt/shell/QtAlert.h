#pragma once

#include "ports/Alert.h"

#include <QList>
#include <QMessageBox>
#include <QPushButton>

namespace lexiform::qt {

/// A message box over the active window. Its buttons stand in the order of adding; the first one is what
/// Return and Escape press.
class QtAlert : public Alert {
public:
    QtAlert();

    void setMessageText(const std::string& text) override;
    void setInformativeText(const std::string& text) override;
    void setAlertStyle(Style style) override;
    void addButton(const std::string& title) override;
    Response runModal() override;

    [[nodiscard]] QMessageBox& box() { return box_; }

private:
    QMessageBox box_;
    QList<QPushButton*> buttons_;
};

} // namespace lexiform::qt
