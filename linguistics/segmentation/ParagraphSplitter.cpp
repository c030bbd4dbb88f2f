#include "linguistics/segmentation/ParagraphSplitter.h"

#include "linguistics/text/Characters.h"
#include "linguistics/text/Unit.h"

namespace lexiform::linguistics {

namespace {

constexpr char32_t paragraphSeparator = 0x2029;

/// Reads a paragraph unit by unit and remembers where it may be cut.
class ParagraphReader {
public:
    ParagraphReader(std::string_view text, std::size_t start)
        : characters_(Characters::table()), text_(text), start_(start), at_(start) {}

    std::size_t end() {
        while (at_ < text_.size()) {
            const Unit unit = next();
            if (unit.end - start_ > longestParagraph) return cut();
            if (blankLineSeen_ && !isBlank(unit)) return lastBreak_;
            take(unit);
        }
        return text_.size();
    }

private:
    Unit next() const {
        const auto byte = static_cast<unsigned char>(text_[at_]);
        // Nearly every byte of most texts: no need to look for what follows it.
        if (byte > ' ' && byte < 0x80) return {at_ + 1, byte, CharacterClass::letter};
        return unitAt(characters_, text_, at_);
    }

    static bool isBlank(const Unit& unit) {
        return unit.kind == CharacterClass::space || unit.kind == CharacterClass::lineBreak;
    }

    void take(const Unit& unit) {
        if (unit.kind == CharacterClass::lineBreak) {
            ++breaksInRun_;
            lastBreak_ = unit.end;
            if (breaksInRun_ > 1 || unit.base == paragraphSeparator) blankLineSeen_ = true;
        } else if (unit.kind == CharacterClass::space) {
            lastSpace_ = unit.end;
        } else {
            breaksInRun_ = 0;
        }
        at_ = unit.end;
    }

    std::size_t cut() const {
        if (lastBreak_ > start_) return lastBreak_;
        if (lastSpace_ > start_) return lastSpace_;
        if (at_ > start_) return at_;
        // One character with tens of thousands of marks: cut between code points.
        std::size_t end = start_;
        while (end - start_ + 4 <= longestParagraph)
            end += codePointAt(text_, end).length;
        return end;
    }

    const Characters& characters_;
    std::string_view text_;
    std::size_t start_;
    std::size_t at_;
    std::size_t lastBreak_ = 0;
    std::size_t lastSpace_ = 0;
    int breaksInRun_ = 0;
    bool blankLineSeen_ = false;
};

} // namespace

TextRange paragraphAt(std::string_view text, std::size_t start) {
    // No unit of the window may look past it, else one character with a million marks costs each
    // paragraph a million steps; four bytes more tell that the paragraph is longer.
    const std::string_view window = text.substr(0, std::min(text.size(), start + longestParagraph + 4));
    return {start, ParagraphReader(window, start).end() - start};
}

} // namespace lexiform::linguistics
