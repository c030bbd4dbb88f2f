#include "platform/qt/documents/FileType.h"

#include "base/Unicode.h"
#include "document/Document.h"
#include "document/detection/detectFormat.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace lexiform::qt {

namespace {

struct KnownExtension {
    const char* extension;
    std::string_view type;
};

constexpr std::string_view htmlType = "public.html";
constexpr std::string_view odtType = "org.oasis-open.opendocument.text";
constexpr std::string_view docxType = "org.openxmlformats.wordprocessingml.document";
constexpr std::string_view epubType = "org.idpf.epub-container";
// Text in an encoding that only its reader finds out, and bytes that are no text.
constexpr std::string_view otherTextType = "public.text";
constexpr std::string_view dataType = "public.data";

constexpr std::array<KnownExtension, 9> knownExtensions{{{"txt", plainTextType},
                                                         {"text", plainTextType},
                                                         {"rtf", richTextType},
                                                         {"html", htmlType},
                                                         {"htm", htmlType},
                                                         {"xhtml", htmlType},
                                                         {"odt", odtType},
                                                         {"docx", docxType},
                                                         {"epub", epubType}}};

std::string_view typeByContent(std::string_view bytes) {
    const auto format = document::detectFormat(bytes);
    if (!format) return dataType;
    switch (*format) {
    case document::Format::plainText:
        return otherTextType;
    case document::Format::rtf:
        return richTextType;
    case document::Format::html:
        return htmlType;
    case document::Format::odt:
        return odtType;
    case document::Format::docx:
        return docxType;
    case document::Format::epub:
        return epubType;
    }
    return dataType;
}

} // namespace

std::string typeOfFile(const QString& path, std::string_view bytes) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    const auto* const known =
        std::find_if(knownExtensions.begin(), knownExtensions.end(),
                     [&](const KnownExtension& row) { return suffix == QLatin1String(row.extension); });
    if (known != knownExtensions.end()) return std::string(known->type);
    return std::string(firstInvalidUtf8(bytes) ? typeByContent(bytes) : plainTextType);
}

bool isWritable(std::string_view type) {
    return type == plainTextType || type == richTextType;
}

QString extensionOf(std::string_view type) {
    return type == plainTextType ? QStringLiteral("txt") : QStringLiteral("rtf");
}

QString nameFilterOf(std::string_view type) {
    return type == plainTextType ? QCoreApplication::translate("FileType", "Plain text (*.txt)")
                                 : QCoreApplication::translate("FileType", "Rich text (*.rtf)");
}

QStringList openFilters() {
    QStringList patterns;
    for (const KnownExtension& row : knownExtensions)
        patterns.append(QStringLiteral("*.") + QLatin1String(row.extension));
    return {QCoreApplication::translate("FileType", "Texts (%1)").arg(patterns.join(u' ')),
            QCoreApplication::translate("FileType", "All files (*)")};
}

} // namespace lexiform::qt
