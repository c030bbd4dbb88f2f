#pragma once

#include <QSplitterHandle>

namespace lexiform::qt {

/// The handle between two panes: a short grip, longer and in the focus colour under the pointer.
class SplitterGrip : public QSplitterHandle {
public:
    explicit SplitterGrip(QSplitter* splitter);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace lexiform::qt
