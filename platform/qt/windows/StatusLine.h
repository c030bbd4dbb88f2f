#pragma once

#include <QLabel>
#include <QStatusBar>

#include <cstdint>

namespace lexiform::qt {

/// The quiet line at the foot of a document window.
class StatusLine : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

    /// The lexical pass has classed that many words.
    void showParsed(std::int64_t words);
    /// The multi-scheme pass has.
    void showMultiParsed(std::int64_t words);
    /// The input pane holds what no pass has seen.
    void showUnparsed();
    void showNothing();
    /// Marks the document as edited, whatever else the line shows.
    void showEdited(bool edited);

    [[nodiscard]] QString text() const { return label_->text(); }
    [[nodiscard]] bool showsEdited() const { return !edited_->text().isEmpty(); }

private:
    [[nodiscard]] static QString counted(std::int64_t words);

    QLabel* label_;
    QLabel* edited_;
};

} // namespace lexiform::qt
