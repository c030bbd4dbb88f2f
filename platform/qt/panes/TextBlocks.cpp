#include "platform/qt/panes/TextBlocks.h"

#include "platform/qt/panes/softBreak.h"
#include "platform/qt/panes/utf8Length.h"

#include <QByteArrayView>
#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace lexiform::qt {

namespace {

struct FoundEnd {
    std::size_t start;
    std::size_t length; ///< 0 at the end of the text
    LineEnd end;
};

FoundEnd nextLineEnd(std::string_view utf8, std::size_t from) {
    for (std::size_t at = from; at < utf8.size(); ++at) {
        const char byte = utf8[at];
        if (byte == '\n') return {at, 1, LineEnd::lf};
        if (byte == '\r')
            return utf8.substr(at + 1, 1) == "\n" ? FoundEnd{at, 2, LineEnd::crlf}
                                                  : FoundEnd{at, 1, LineEnd::cr};
        if (byte != '\xE2' && byte != '\xEF') continue;
        const std::string_view three = utf8.substr(at, 3);
        if (three == "\xE2\x80\xA9") return {at, 3, LineEnd::paragraphSeparator};
        if (three == "\xEF\xB7\x90") return {at, 3, LineEnd::frameBegin};
        if (three == "\xEF\xB7\x91") return {at, 3, LineEnd::frameEnd};
    }
    return {utf8.size(), 0, LineEnd::soft};
}

class BlockCutter {
public:
    BlockCutter(std::string_view utf8, qsizetype occupied) : utf8_(utf8), occupied_(occupied) {
        blocks_.text.reserve(static_cast<qsizetype>(utf8.size()));
        blocks_.starts.push_back(0);
    }

    TextBlocks cut() {
        for (std::size_t start = 0;;) {
            const FoundEnd found = nextLineEnd(utf8_, start);
            addLine(start, found.start - start);
            if (found.length == 0) return std::move(blocks_);
            start = found.start + found.length;
            endBlock(found.end, start);
        }
    }

private:
    void addLine(std::size_t start, std::size_t length) {
        const QStringView line = decoded(utf8_.substr(start, length));
        if (occupied_ + line.size() <= longestPiece)
            blocks_.text.append(line);
        else
            addInPieces(line, start);
    }

    void addInPieces(QStringView line, std::size_t start) {
        // Room for a few characters even in a full block: where it ends, a cluster may go on.
        qsizetype room = std::max<qsizetype>(longestPiece - occupied_, 64);
        for (;;) {
            const QStringView piece = line.first(softBreakIn(line, room));
            blocks_.text.append(piece);
            if (piece.size() == line.size()) return;
            line = line.sliced(piece.size());
            start += utf8Length(piece);
            endBlock(LineEnd::soft, start);
            room = longestPiece;
        }
    }

    void endBlock(LineEnd end, std::size_t nextStart) {
        blocks_.text.append(QChar::ParagraphSeparator);
        blocks_.ends.push_back(end);
        blocks_.starts.push_back(nextStart);
        occupied_ = 0;
    }

    // The view is good until the next line. A byte order mark stays: it is a character of the text.
    QStringView decoded(std::string_view bytes) {
        const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
        QStringDecoder decoder(QStringDecoder::Utf8,
                               QStringDecoder::Flag::ConvertInitialBom | QStringDecoder::Flag::Stateless);
        const qsizetype needed = decoder.requiredSpace(view.size());
        if (line_.size() < needed) line_.resize(needed);
        const QChar* end = decoder.appendToBuffer(line_.data(), view);
        return {line_.constData(), end};
    }

    std::string_view utf8_;
    qsizetype occupied_;
    QString line_;
    TextBlocks blocks_;
};

} // namespace

TextBlocks cutIntoBlocks(std::string_view utf8, qsizetype occupied) {
    return BlockCutter(utf8, occupied).cut();
}

LineEnd commonestLineEnd(const TextBlocks& blocks) {
    constexpr std::array candidates = {LineEnd::lf, LineEnd::crlf, LineEnd::cr, LineEnd::paragraphSeparator};
    std::array<std::size_t, 7> counts{};
    for (const LineEnd end : blocks.ends)
        ++counts[static_cast<std::size_t>(end)];
    return *std::max_element(candidates.begin(), candidates.end(), [&](LineEnd a, LineEnd b) {
        return counts[static_cast<std::size_t>(a)] < counts[static_cast<std::size_t>(b)];
    });
}

} // namespace lexiform::qt
