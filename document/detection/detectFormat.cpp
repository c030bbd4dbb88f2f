#include "document/detection/detectFormat.h"

#include "document/docx/DocxReader.h"
#include "document/epub/EpubReader.h"
#include "document/html/HtmlReader.h"
#include "document/odf/OdtReader.h"
#include "document/package/Package.h"
#include "document/rtf/RtfReader.h"

#include <algorithm>
#include <array>

namespace lexiform::document {

namespace {

using namespace std::string_view_literals;

// Formats whose first bytes could pass for text, or whose rest could.
constexpr std::array<std::string_view, 9> foreign = {
    "%PDF-"sv,
    "%!PS"sv,
    "PK\x03\x04"sv,
    "\xD0\xCF\x11\xE0"sv,
    "\x89PNG"sv,
    "\xFF\xD8\xFF"sv,
    "GIF8"sv,
    "\x1F\x8B"sv,
    "\x7F"
    "ELF"sv,
};

std::optional<Format> formatOfPackage(std::string_view bytes) {
    auto opened = Package::open(bytes);
    if (!opened.succeeded()) return std::nullopt;
    Package package = std::move(opened).value();
    if (isOdt(package)) return Format::odt;
    if (isDocx(package)) return Format::docx;
    if (isEpub(package)) return Format::epub;
    return std::nullopt;
}

bool isForeign(std::string_view bytes) {
    return std::any_of(foreign.begin(), foreign.end(),
                       [&](std::string_view start) { return bytes.starts_with(start); });
}

} // namespace

std::optional<Format> detectFormat(std::string_view bytes) {
    if (isPackage(bytes)) return formatOfPackage(bytes);
    if (bytes.empty() || isForeign(bytes)) return std::nullopt;
    if (isRtf(bytes)) return Format::rtf;
    if (isHtml(bytes)) return Format::html;
    return Format::plainText;
}

} // namespace lexiform::document
