#include "platform/qt/panes/colouredHtml.h"

#include "platform/qt/theme/Appearance.h"

#include <string_view>

namespace lexiform::qt {

namespace {

void appendEscaped(std::string& html, std::string_view text) {
    for (const char byte : text) {
        if (byte == '&')
            html += "&amp;";
        else if (byte == '<')
            html += "&lt;";
        else if (byte == '>')
            html += "&gt;";
        else if (byte != '\0') // HTML has no way to say it
            html += byte;
    }
}

} // namespace

std::string colouredHtml(const AttributedText& text) {
    std::string html = "<meta charset=\"utf-8\"><div style=\"white-space: pre-wrap\">";
    std::size_t start = 0;
    for (const AttributedText::Run& run : text.runs()) {
        const QString value = valueOf(run.colour, Appearance::light).name();
        html += "<span style=\"color: " + value.toStdString() + "\">";
        appendEscaped(html, std::string_view(text.string()).substr(start, run.end - start));
        html += "</span>";
        start = run.end;
    }
    return html + "</div>";
}

} // namespace lexiform::qt
