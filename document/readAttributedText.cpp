#include "document/readAttributedText.h"

#include "document/detection/detectFormat.h"
#include "document/docx/DocxReader.h"
#include "document/epub/EpubReader.h"
#include "document/html/HtmlReader.h"
#include "document/odf/OdtReader.h"
#include "document/package/Package.h"
#include "document/rtf/RtfReader.h"
#include "document/text/decodeText.h"

#include <string>
#include <utility>

namespace lexiform::document {

namespace {

using Text = Outcome<std::string, ReadFault>;

Text readPlainText(std::string_view bytes) {
    auto text = decodeText(bytes);
    if (!text) return ReadFault::unknownFormat;
    return std::move(*text);
}

Text readPackage(std::string_view bytes, Text (*read)(Package&)) {
    auto opened = Package::open(bytes);
    if (!opened.succeeded()) return opened.fault();
    Package package = std::move(opened).value();
    return read(package);
}

Text readUncoloured(std::string_view bytes, Format format) {
    switch (format) {
    case Format::html:
        return readHtml(bytes);
    case Format::odt:
        return readPackage(bytes, readOdt);
    case Format::docx:
        return readPackage(bytes, readDocx);
    case Format::epub:
        return readPackage(bytes, readEpub);
    default:
        return readPlainText(bytes);
    }
}

} // namespace

Outcome<AttributedText, ReadFault> readAttributedText(std::string_view bytes, const ReadHints& hints) {
    const auto format = hints.format ? hints.format : detectFormat(bytes);
    if (!format || bytes.empty()) return ReadFault::unknownFormat;
    if (*format == Format::rtf) return readRtf(bytes);
    auto text = readUncoloured(bytes, *format);
    if (!text.succeeded()) return text.fault();
    return AttributedText(std::move(text).value(), Colour::text);
}

} // namespace lexiform::document
