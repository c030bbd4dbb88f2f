#include "platform/qt/panes/ColouredMimeData.h"

#include "base/present.h"
#include "document/rtf/RtfWriter.h"
#include "platform/qt/panes/colouredHtml.h"

#include <utility>

namespace lexiform::qt {

namespace {

constexpr QLatin1String htmlType("text/html");
constexpr QLatin1String rtfType("text/rtf");
constexpr QLatin1String rtfApplicationType("application/rtf");

QByteArray copiedRtf(const AttributedText& text) {
    const auto rtf = document::writeRtf(text, {0, document::utf16Length(text.string())});
    return QByteArray::fromStdString(present(rtf));
}

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
    if (format == rtfType || format == rtfApplicationType) return copiedRtf(coloured_);
    return QMimeData::retrieveData(format, type);
}

} // namespace lexiform::qt
