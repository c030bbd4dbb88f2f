#include "platform/qt/panes/ColouredMimeData.h"

#include "platform/qt/panes/colouredHtml.h"
#include "platform/qt/panes/colouredRtf.h"

#include <utility>

namespace lexiform::qt {

namespace {

constexpr QLatin1String htmlType("text/html");
constexpr QLatin1String rtfType("text/rtf");
constexpr QLatin1String rtfApplicationType("application/rtf");

} // namespace

ColouredMimeData::ColouredMimeData(const QString& plain, AttributedText coloured)
    : coloured_(std::move(coloured)) {
    setText(plain);
}

QStringList ColouredMimeData::formats() const {
    return QMimeData::formats() << htmlType << rtfType << rtfApplicationType;
}

bool ColouredMimeData::hasFormat(const QString& format) const {
    return formats().contains(format);
}

QVariant ColouredMimeData::retrieveData(const QString& format, QMetaType type) const {
    if (format == htmlType) return QString::fromStdString(colouredHtml(coloured_));
    if (format == rtfType || format == rtfApplicationType)
        return QByteArray::fromStdString(colouredRtf(coloured_));
    return QMimeData::retrieveData(format, type);
}

} // namespace lexiform::qt
