#pragma once

#include "base/AttributedText.h"
#include "base/Outcome.h"
#include "document/format/ReadFault.h"
#include "document/rtf/RtfColours.h"
#include "document/rtf/RtfDecoder.h"
#include "document/rtf/RtfFonts.h"
#include "document/rtf/RtfScanner.h"
#include "document/rtf/RtfText.h"
#include "document/rtf/rtfKeywords.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::document {

/// What the text of a group of an RTF file is for.
enum class RtfDestination : std::uint8_t { text, skipped, choice, fontTable, colourTable };

/// What holds until the end of a group, and is inherited by the groups inside it.
struct RtfGroup {
    RtfDestination destination = RtfDestination::text;
    bool isNote = false;
    bool isHidden = false;
    bool isDeleted = false;
    Colour colour = Colour::text;
    std::int32_t fallbackLength = 1;
    std::optional<std::int32_t> font;
};

/// Goes through an RTF file and obeys it.
class RtfInterpreter {
public:
    /// `bytes` begin with the first group, and must outlive the interpreter.
    explicit RtfInterpreter(std::string_view bytes) : scanner_(bytes) {}

    /// What `readRtf` promises; once.
    Outcome<AttributedText, ReadFault> read();

private:
    [[nodiscard]] bool take(const RtfToken& token);
    void open();
    void close();
    void symbol(std::string_view symbol);
    void word(const RtfToken& token);
    void startDestination(RtfAction action, std::int32_t number);
    void obeyInFontTable(RtfAction action, std::int32_t number);
    void obeyInColourTable(RtfAction action, std::int32_t number);
    void obey(const RtfKeyword& keyword, const RtfToken& token);
    void obeyForFile(const RtfKeyword& keyword, std::int32_t number);
    void skipBinary(std::int32_t count);
    void addBytes(std::string_view bytes);
    void addUnit(std::int32_t unit);
    void addCodePoint(char32_t codePoint);
    void addText(std::string_view text);
    void endLine();
    void flush();
    void dropHighSurrogate();
    [[nodiscard]] bool isShown() const;
    [[nodiscard]] RtfText& target() { return group().isNote ? notes_ : body_; }
    [[nodiscard]] RtfGroup& group() { return groups_.back(); }

    RtfScanner scanner_;
    std::vector<RtfGroup> groups_;
    RtfFonts fonts_;
    RtfColours colours_;
    RtfDecoder decoder_;
    RtfText body_;
    RtfText notes_;
    std::string bytes_;          ///< of one code page, not yet decoded
    std::string ownLineEnd_;     ///< what the next line end stands for; a line feed when empty
    char32_t highSurrogate_ = 0; ///< waits for its low one
    std::int32_t fallback_ = 0;  ///< characters to come that stand for the last one, for old readers
    bool startsGroup_ = false;   ///< nothing but `\*` has come in the group
    bool mayBeIgnored_ = false;  ///< `\*` has just come
};

} // namespace lexiform::document
