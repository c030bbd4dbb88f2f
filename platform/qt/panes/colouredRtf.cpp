#include "platform/qt/panes/colouredRtf.h"

#include "platform/qt/theme/Appearance.h"

#include <QString>

#include <cstdint>

namespace lexiform::qt {

namespace {

// Entry 0 of an RTF colour table stands for "automatic", so that colour c is entry c + 1.
std::string colourTable() {
    std::string table = "{\\colortbl;";
    for (int i = 0; i <= static_cast<int>(Colour::text); ++i) {
        const QColor value = valueOf(static_cast<Colour>(i), Appearance::light);
        table += "\\red" + std::to_string(value.red()) + "\\green" + std::to_string(value.green()) +
                 "\\blue" + std::to_string(value.blue()) + ";";
    }
    return table + "}";
}

void appendUnit(std::string& rtf, char16_t unit) {
    if (unit == u'\\' || unit == u'{' || unit == u'}')
        rtf += {'\\', static_cast<char>(unit)};
    else if (unit == u'\t')
        rtf += "\\tab ";
    else if (unit >= 0x20 && unit < 0x7F)
        rtf += static_cast<char>(unit);
    else
        rtf += "\\u" + std::to_string(static_cast<std::int16_t>(unit)) + "?";
}

void appendText(std::string& rtf, const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (unit == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') continue;
        if (unit == u'\n' || unit == u'\r' || unit == u'\u2029')
            rtf += "\\par\n";
        else
            appendUnit(rtf, unit);
    }
}

} // namespace

std::string colouredRtf(const AttributedText& text) {
    std::string rtf =
        "{\\rtf1\\ansi\\uc1\\deff0{\\fonttbl{\\f0\\fswiss Noto Sans;}}" + colourTable() + "\\fs24\n";
    std::size_t start = 0;
    for (const AttributedText::Run& run : text.runs()) {
        rtf += "\\cf" + std::to_string(static_cast<int>(run.colour) + 1) + " ";
        appendText(rtf, QString::fromStdString(text.string().substr(start, run.end - start)));
        start = run.end;
    }
    return rtf + "}";
}

} // namespace lexiform::qt
