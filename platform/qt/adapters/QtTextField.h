#pragma once

#include "platform/qt/panes/KeyTextEdit.h"
#include "ports/TextField.h"

#include <QPointer>

namespace lexiform::qt {

/// The colour key as the core sees it. Once the widget is gone, values go nowhere.
class QtTextField : public TextField {
public:
    explicit QtTextField(KeyTextEdit* key) : key_(key) {}

    void setStringValue(const std::string& value) override;

private:
    QPointer<KeyTextEdit> key_;
};

} // namespace lexiform::qt
