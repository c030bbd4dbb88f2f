#pragma once

#include "platform/qt/theme/Theme.h"

#include <QList>
#include <QPoint>
#include <QSettings>
#include <QSize>
#include <QString>

#include <optional>

namespace lexiform::qt {

/// What the program remembers of its windows from one run to the next. It is no preference of the
/// user's: losing it costs a new arrangement of the panes. A value that makes no sense counts as absent.
class StateStore {
public:
    /// Keeps the state in the INI file at `path`, which is made on the first change.
    explicit StateStore(const QString& path);

    /// The size of the windows of a name; invalid while none is remembered.
    [[nodiscard]] QSize windowSize(const QString& window) const;
    void setWindowSize(const QString& window, QSize size);
    /// Where the frame of such a window began on the desktop; nothing while none is remembered.
    [[nodiscard]] std::optional<QPoint> windowPlace(const QString& window) const;
    void setWindowPlace(const QString& window, QPoint place);
    /// Whether it was maximised; false while nothing else is remembered.
    [[nodiscard]] bool windowIsMaximised(const QString& window) const;
    void setWindowIsMaximised(const QString& window, bool maximised);

    /// The widths of the panes in pixels, from left to right; empty while none are remembered.
    [[nodiscard]] QList<int> paneSizes() const;
    void setPaneSizes(const QList<int>& sizes);

    /// How many points larger than usual the text of each pane is, from left to right; empty while none is
    /// remembered.
    [[nodiscard]] QList<int> paneZooms() const;
    void setPaneZooms(const QList<int>& points);

    /// Whether the lines of a pane are wrapped; true while nothing else is remembered.
    [[nodiscard]] bool wrapsLines(const QString& pane) const;
    void setWrapsLines(const QString& pane, bool wraps);

    [[nodiscard]] AppearanceChoice appearance() const;
    void setAppearance(AppearanceChoice choice);

    [[nodiscard]] ClassMarks classMarks() const;
    void setClassMarks(const ClassMarks& marks);

private:
    void setNumbers(const QString& key, const QList<int>& numbers);

    QSettings settings_;
};

} // namespace lexiform::qt
