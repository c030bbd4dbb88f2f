#include "platform/qt/windows/StateStore.h"

#include "platform/qt/adapters/fileOfPlainValues.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace lexiform::qt {

namespace {

const QString panesKey = QStringLiteral("window/panes");
const QString zoomsKey = QStringLiteral("window/zoom");
const QString wrapKeys = QStringLiteral("wrap/");
const QString appearanceKey = QStringLiteral("appearance");
const QString classPaletteKey = QStringLiteral("classes/palette");
const QString classLinesKey = QStringLiteral("classes/underlined");

const QString colourBlindName = QStringLiteral("colour-blind");

// In the order of AppearanceChoice.
constexpr std::array<const char*, 3> choiceNames = {"system", "light", "dark"};

} // namespace

StateStore::StateStore(const QString& path) : settings_(fileOfPlainValues(path), QSettings::IniFormat) {}

QSize StateStore::windowSize(const QString& window) const {
    // An INI file holds texts: what is no number reads as 0.
    const QSize size(settings_.value(window + QLatin1String("/width")).toInt(),
                     settings_.value(window + QLatin1String("/height")).toInt());
    return size.isEmpty() ? QSize() : size;
}

void StateStore::setWindowSize(const QString& window, QSize size) {
    settings_.setValue(window + QLatin1String("/width"), size.width());
    settings_.setValue(window + QLatin1String("/height"), size.height());
}

std::optional<QPoint> StateStore::windowPlace(const QString& window) const {
    bool hasLeft = false;
    bool hasTop = false;
    const int left = settings_.value(window + QLatin1String("/left")).toInt(&hasLeft);
    const int top = settings_.value(window + QLatin1String("/top")).toInt(&hasTop);
    return hasLeft && hasTop ? std::optional(QPoint(left, top)) : std::nullopt;
}

void StateStore::setWindowPlace(const QString& window, QPoint place) {
    settings_.setValue(window + QLatin1String("/left"), place.x());
    settings_.setValue(window + QLatin1String("/top"), place.y());
}

bool StateStore::windowIsMaximised(const QString& window) const {
    return settings_.value(window + QLatin1String("/maximised")).toString() == QLatin1String("true");
}

void StateStore::setWindowIsMaximised(const QString& window, bool maximised) {
    settings_.setValue(window + QLatin1String("/maximised"), maximised);
}

QList<int> StateStore::paneSizes() const {
    QList<int> sizes;
    for (const QString& text : settings_.value(panesKey).toStringList())
        sizes.append(text.toInt());
    const bool sensible = std::all_of(sizes.cbegin(), sizes.cend(), [](int size) { return size > 0; });
    return sensible ? sizes : QList<int>();
}

void StateStore::setPaneSizes(const QList<int>& sizes) {
    setNumbers(panesKey, sizes);
}

QList<int> StateStore::paneZooms() const {
    QList<int> points;
    for (const QString& text : settings_.value(zoomsKey).toStringList()) {
        bool isNumber = false;
        points.append(text.toInt(&isNumber));
        if (!isNumber) return {};
    }
    return points;
}

void StateStore::setPaneZooms(const QList<int>& points) {
    setNumbers(zoomsKey, points);
}

bool StateStore::wrapsLines(const QString& pane) const {
    return settings_.value(wrapKeys + pane).toString() != QLatin1String("false");
}

void StateStore::setWrapsLines(const QString& pane, bool wraps) {
    settings_.setValue(wrapKeys + pane, wraps);
}

void StateStore::setNumbers(const QString& key, const QList<int>& numbers) {
    QStringList texts;
    for (const int number : numbers)
        texts.append(QString::number(number));
    settings_.setValue(key, texts);
}

AppearanceChoice StateStore::appearance() const {
    const QString name = settings_.value(appearanceKey).toString();
    const auto* const found = std::find(choiceNames.begin(), choiceNames.end(), name);
    if (found == choiceNames.end()) return AppearanceChoice::system;
    return static_cast<AppearanceChoice>(found - choiceNames.begin());
}

ClassMarks StateStore::classMarks() const {
    const bool isColourBlind = settings_.value(classPaletteKey).toString() == colourBlindName;
    return {.palette = isColourBlind ? ClassPalette::colourBlind : ClassPalette::standard,
            .underlined = settings_.value(classLinesKey).toString() == QLatin1String("true")};
}

void StateStore::setClassMarks(const ClassMarks& marks) {
    settings_.setValue(classPaletteKey, marks.palette == ClassPalette::colourBlind
                                            ? colourBlindName
                                            : QStringLiteral("standard"));
    settings_.setValue(classLinesKey, marks.underlined);
}

void StateStore::setAppearance(AppearanceChoice choice) {
    settings_.setValue(appearanceKey, QString::fromLatin1(choiceNames[static_cast<std::size_t>(choice)]));
}

} // namespace lexiform::qt
