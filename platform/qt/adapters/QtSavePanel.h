#pragma once

#include "platform/qt/adapters/SaveDialog.h"
#include "ports/SavePanel.h"

#include <QPointer>

namespace lexiform::qt {

/// A save dialog in a window of its own that blocks nothing.
class QtSavePanel : public SavePanel {
public:
    explicit QtSavePanel(const QString& title);
    ~QtSavePanel() override;
    QtSavePanel(const QtSavePanel&) = delete;
    QtSavePanel& operator=(const QtSavePanel&) = delete;

    void setCanCreateDirectories(bool allowed) override;
    void setAllowedFileTypes(std::span<const std::string_view> extensions) override;
    void setNameFieldStringValue(const std::string& name) override;
    void begin(std::function<void(Response)> completion) override;
    [[nodiscard]] std::optional<std::string> url() const override { return chosen_; }

    [[nodiscard]] SaveDialog* dialog() const { return dialog_; }

private:
    void finish(int result);

    QPointer<SaveDialog> dialog_;
    std::function<void(Response)> completion_;
    std::optional<std::string> chosen_;
};

} // namespace lexiform::qt
