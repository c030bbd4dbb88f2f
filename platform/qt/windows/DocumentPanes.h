#pragma once

#include "platform/qt/panes/InputTextEdit.h"
#include "platform/qt/panes/KeyTextEdit.h"
#include "platform/qt/panes/OutputTextEdit.h"
#include "platform/qt/windows/PaneSplitter.h"

#include <array>

namespace lexiform::qt {

/// The four panes of a document window, side by side.
class DocumentPanes : public PaneSplitter {
    Q_OBJECT

public:
    explicit DocumentPanes(QWidget* parent = nullptr);

    [[nodiscard]] InputTextEdit* input() const { return input_; }
    [[nodiscard]] OutputTextEdit* output() const { return output_; }
    [[nodiscard]] KeyTextEdit* key() const { return key_; }
    [[nodiscard]] OutputTextEdit* concordance() const { return concordance_; }
    /// From left to right.
    [[nodiscard]] std::array<PaneTextEdit*, 4> all() const { return {input_, output_, key_, concordance_}; }

private:
    InputTextEdit* input_;
    OutputTextEdit* output_;
    KeyTextEdit* key_;
    OutputTextEdit* concordance_;
};

} // namespace lexiform::qt
