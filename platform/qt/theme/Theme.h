#pragma once

#include "platform/qt/theme/Appearance.h"

#include <QApplication>
#include <QObject>

#include <cstdint>

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

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void choiceChanged();

private:
    void followDesktop();
    void show(Appearance appearance);

    QApplication& application_;
    AppearanceChoice choice_;
    Appearance desktop_;
    Appearance shown_ = Appearance::light;
    bool dressing_ = false;
};

} // namespace lexiform::qt
