#include "platform/qt/theme/StyleSheet.h"

#include "platform/qt/theme/Palette.h"

#include <array>
#include <utility>

namespace lexiform::qt {

namespace {

// Names with a leading $ stand for surfaces. No name may be the beginning of another.
constexpr auto sheet = R"(
QMenuBar { background: $window; color: $text; border: none; padding: 0 0 0 18px; spacing: 2px; }
QMenuBar::item { background: transparent; padding: 6px 12px; border-radius: 4px; }
QMenuBar::item:selected { background: $hover; }
QMenuBar::item:pressed { background: $pressed; }
QMenuBar::item:disabled { color: $faint; }

QMenu { background: $fill; color: $text; border: 1px solid $outline; padding: 5px; }
QMenu::item { padding: 6px 28px 6px 28px; border-radius: 4px; }
QMenu::item:selected { background: $selection; }
QMenu::item:disabled { color: $faint; background: transparent; }
QMenu::icon { padding-left: 8px; }
QMenu::separator { height: 1px; background: $outline; margin: 5px 8px; }

QToolBar { background: $window; border: none; padding: 4px; spacing: 4px; }
QToolBar::separator { background: $outline; width: 1px; margin: 10px 8px; }
QToolBar QToolButton { border: 2px solid transparent; border-radius: 6px; padding: 4px 10px 4px 6px;
                       background: transparent; color: $text; }
QToolBar QToolButton:hover { background: $hover; }
QToolBar QToolButton:pressed { background: $pressed; }
QToolBar QToolButton:focus { border-color: $accent; }
QToolBar QToolButton:disabled { color: $faint; background: transparent; }
QPrintPreviewDialog QToolBar QToolButton { padding: 4px; }

#findBar QToolButton { border: 2px solid transparent; border-radius: 6px; padding: 6px 10px;
                       background: transparent; color: $text; }
#findBar QToolButton:hover { background: $hover; }
#findBar QToolButton:pressed { background: $pressed; }
#findBar QToolButton:focus { border-color: $accent; }
QLineEdit { border: 1px solid $border; border-radius: 6px; padding: 6px 9px; background: $fill; color: $text;
            selection-background-color: $selection; selection-color: $text; }
QLineEdit:focus { border: 2px solid $accent; padding: 5px 8px; }
QComboBox QLineEdit, QComboBox QLineEdit:focus { border: none; padding: 0; background: transparent; }

QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QPushButton { border: 1px solid $border; border-radius: 6px; padding: 6px 20px;
              background: $fill; color: $text; }
QPushButton:hover { background: $pointed; }
QPushButton:pressed { background: $pressed; }
QPushButton:focus { border: 2px solid $accent; padding: 5px 19px; }
QPushButton:disabled { color: $faint; border-color: $outline; background: transparent; }

QComboBox { combobox-popup: 0; }
QComboBox QAbstractItemView { background: $fill; border: 1px solid $outline; padding: 5px; outline: none; }

QStatusBar { background: $window; border: none; }
QStatusBar::item { border: none; }
QToolTip { background: $fill; color: $text; border: 1px solid $outline; padding: 1px 2px; }

QScrollBar { background: transparent; border: none; }
QScrollBar:vertical { width: 10px; margin: 2px; }
lexiform--qt--KeyTextEdit QScrollBar:vertical { width: 8px; margin: 2px 0 2px 2px; }
QScrollBar:horizontal { height: 10px; margin: 2px; }
QScrollBar::handle { background: $grip; border-radius: 3px; }
QScrollBar::handle:vertical { min-height: 32px; }
QScrollBar::handle:horizontal { min-width: 32px; }
QScrollBar::handle:hover, QScrollBar::handle:pressed { background: $border; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

} // namespace

QString styleSheetOf(Appearance appearance) {
    const Surfaces& surfaces = surfacesOf(appearance);
    const std::array<std::pair<const char*, QColor>, 12> values = {{
        {"$window", surfaces.window},
        {"$text", surfaces.text},
        {"$faint", surfaces.disabledText},
        {"$hover", surfaces.hover},
        {"$pressed", surfaces.pressed},
        {"$fill", surfaces.controlFill},
        {"$pointed", pointedFill(surfaces)},
        {"$selection", surfaces.selection},
        {"$outline", surfaces.disabledBorder},
        {"$accent", surfaces.focus},
        {"$grip", surfaces.handle},
        {"$border", surfaces.controlBorder},
    }};
    QString text = QString::fromLatin1(sheet);
    for (const auto& [name, colour] : values)
        text.replace(QLatin1String(name), colour.name());
    return text;
}

} // namespace lexiform::qt
