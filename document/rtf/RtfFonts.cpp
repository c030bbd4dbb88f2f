#include "document/rtf/RtfFonts.h"

namespace lexiform::document {

void RtfFonts::setCharset(std::int32_t charset) {
    if (defined_) defined_->charset = charset;
}

void RtfFonts::setFontCodePage(std::int32_t codePage) {
    if (defined_) defined_->codePage = codePage;
}

std::int32_t RtfFonts::codePageOf(std::optional<std::int32_t> font) const {
    const auto entry = fonts_.find(font.value_or(defaultFont_));
    if (entry == fonts_.end()) return codePage_;
    const auto& [charset, codePage] = entry->second;
    if (codePage) return *codePage;
    if (!charset || (*charset == 0 && writtenOnMac_)) return codePage_;
    return codePageOfCharset(*charset).value_or(codePage_);
}

} // namespace lexiform::document
