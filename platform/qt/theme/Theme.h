#pragma once

#include "platform/qt/theme/ClassMarks.h"

#include <QApplication>
#include <QObject>

#include <cstdint>
#include <optional>

namespace lexiform::qt {

/// Which appearance the user asks for.
enum class AppearanceChoice : std::uint8_t { system, light, dark };

/// Dresses the whole program: Fusion with the palette and the style sheet of one appearance, switched
/// while it runs. Widgets learn of a switch through their usual palette change.
class Theme : public QObject {
    Q_OBJECT

public:
    /// Dresses `application`, which must outlive the theme, at once.
    Theme(QApplication& application, AppearanceChoice choice);

    [[nodiscard]] AppearanceChoice choice() const { return choice_; }
    /// The appearance that is shown.
    [[nodiscard]] Appearance appearance() const { return shown_; }
    void setChoice(AppearanceChoice choice);

    /// What the desktop says that it prefers, which goes before what its palette looks like; nothing for a
    /// desktop that says nothing.
    void setDesktopPreference(std::optional<Appearance> preference);

    /// How all windows mark the classes of words.
    [[nodiscard]] const ClassMarks& classMarks() const { return classMarks_; }
    void setClassMarks(const ClassMarks& marks);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void choiceChanged();
    void classMarksChanged();

private:
    void followDesktop();
    void followDesktopSoon();
    [[nodiscard]] Appearance desktopAppearance() const;
    void show(Appearance appearance);

    QApplication& application_;
    AppearanceChoice choice_;
    std::optional<Appearance> preference_;
    Appearance desktopPalette_; ///< what the desktop's palette looks like
    Appearance shown_ = Appearance::light;
    bool dressing_ = false;
    bool willFollow_ = false;
    ClassMarks classMarks_;
};

} // namespace lexiform::qt
