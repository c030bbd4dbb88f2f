#include "tools/train/segmentation/RawText.h"

#include "linguistics/text/Hash.h"

namespace lexiform::train {

namespace {

/// Writes sentence after sentence.
class Writer {
public:
    explicit Writer(Layout layout) : layout_(layout) {}

    void write(const GoldSentence& sentence) {
        part(sentence);
        mark(raw_.sentenceStarts, raw_.text.size());
        ++raw_.sentences;
        for (const GoldToken& token : sentence.tokens)
            write(token);
        ++inParagraph_;
    }

    RawText finished() {
        const std::size_t size = raw_.text.size() + 1;
        raw_.tokenEnds.resize(size);
        raw_.sentenceStarts.resize(size);
        raw_.inToken.resize(size);
        return std::move(raw_);
    }

private:
    static void mark(std::vector<bool>& places, std::size_t place) {
        if (places.size() <= place) places.resize(place + 1024);
        places[place] = true;
    }

    void part(const GoldSentence& sentence) {
        if (raw_.text.empty()) return;
        const bool endsParagraph =
            sentence.startsParagraph || (layout_ != Layout::paragraphs && inParagraph_ >= length_);
        trimSpace(endsParagraph || layout_ == Layout::lines);
        if (endsParagraph) {
            raw_.text += "\n\n";
            inParagraph_ = 0;
            lineStart_ = raw_.text.size();
            choose();
        } else if (layout_ == Layout::lines) {
            raw_.text += '\n';
        } else if (layout_ == Layout::wrapped && endsWide()) {
            trimSpace(true);
        } else if (raw_.text.back() != ' ') {
            space();
        }
    }

    void trimSpace(bool atBreak) {
        if (atBreak && raw_.text.back() == ' ') raw_.text.pop_back();
    }

    // No space follows a full stop of Chinese.
    bool endsWide() const { return raw_.text.ends_with("\u3002") || raw_.text.ends_with("\u3002 "); }

    // The length of the next paragraph in sentences and the width of its column, by chance but always alike.
    void choose() {
        const std::uint64_t chance = linguistics::mixed(raw_.text.size());
        length_ = 2 + chance % 7;
        width_ = 50 + (chance >> 8) % 31;
    }

    void write(const GoldToken& token) {
        const std::size_t start = raw_.text.size();
        wrapBefore(token.form);
        const std::size_t first = raw_.text.size() == start ? start : raw_.text.size();
        raw_.text += token.form;
        mark(raw_.tokenEnds, raw_.text.size());
        for (std::size_t at = first + 1; at < raw_.text.size(); ++at)
            mark(raw_.inToken, at);
        ++raw_.tokens;
        if (token.spaceAfter) space();
    }

    void space() { raw_.text += ' '; }

    // A word that goes past the column moves to the next line, with what it hangs on to.
    void wrapBefore(const std::string& form) {
        if (layout_ != Layout::wrapped || raw_.text.empty() || raw_.text.back() != ' ') return;
        if (raw_.text.size() - lineStart_ + form.size() <= width_) return;
        raw_.text.back() = '\n';
        lineStart_ = raw_.text.size();
    }

    Layout layout_;
    RawText raw_;
    std::size_t inParagraph_ = 0, length_ = 5, width_ = 72, lineStart_ = 0;
};

} // namespace

RawText rawTextOf(const Corpus& corpus, Layout layout) {
    Writer writer(layout);
    for (const GoldSentence& sentence : corpus)
        if (!sentence.tokens.empty()) writer.write(sentence);
    return writer.finished();
}

} // namespace lexiform::train
