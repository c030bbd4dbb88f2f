#pragma once

#include "document/rtf/rtfCodePages.h"

#include <cstdint>
#include <map>
#include <optional>

namespace lexiform::document {

/// The code pages of an RTF file and of its fonts, by their numbers.
class RtfFonts {
public:
    /// Of the whole file.
    void setCodePage(std::int32_t codePage) { codePage_ = codePage; }
    void setDefaultFont(std::int32_t font) { defaultFont_ = font; }
    /// The file was written on a Mac, where a font of Western charset says nothing of the code page.
    void setWrittenOnMac() { writtenOnMac_ = true; }

    /// Starts the entry of a font in the table of fonts.
    void define(std::int32_t font) { defined_ = &fonts_[font]; }
    /// Of the font that was defined last, if any.
    void setCharset(std::int32_t charset);
    void setFontCodePage(std::int32_t codePage);

    /// The code page of text in a font, or in the default font.
    [[nodiscard]] std::int32_t codePageOf(std::optional<std::int32_t> font) const;

private:
    struct Font {
        std::optional<std::int32_t> charset;
        std::optional<std::int32_t> codePage;
    };

    std::map<std::int32_t, Font> fonts_;
    Font* defined_ = nullptr;
    std::int32_t defaultFont_ = 0;
    std::int32_t codePage_ = westernCodePage;
    bool writtenOnMac_ = false;
};

} // namespace lexiform::document
