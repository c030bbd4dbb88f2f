#include "platform/qt/panes/TextBlocks.h"

#include "platform/qt/panes/softBreak.h"
#include "platform/qt/panes/utf8Length.h"

#include <QByteArrayView>
#include <QStringDecoder>
#include <QTextBoundaryFinder>

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

// How much of `line` finishes the grapheme cluster with which `before` ends.
qsizetype restOfCluster(QStringView before, QStringView line) {
    constexpr qsizetype context = 64;
    if (before.isEmpty() || before.size() >= longestCluster) return 0;
    const qsizetype seam = std::min(before.size(), context);
    QString around = before.last(seam).toString();
    around.append(line.first(std::min(line.size(), context)));
    QTextBoundaryFinder clusters(QTextBoundaryFinder::Grapheme, around);
    clusters.setPosition(seam);
    return clusters.isAtBoundary() ? 0 : clusters.toNextBoundary() - seam;
}

class BlockCutter {
public:
    BlockCutter(std::string_view utf8, QStringView before) : utf8_(utf8), before_(before) {
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
        if (before_.size() + line.size() <= longestPiece)
            blocks_.text.append(line);
        else
            addInPieces(line, start);
    }

    void addInPieces(QStringView line, std::size_t start) {
        for (;;) {
            const QStringView piece = line.first(firstPieceOf(line));
            blocks_.text.append(piece);
            if (piece.size() == line.size()) return;
            line = line.sliced(piece.size());
            start += utf8Length(piece);
            endBlock(LineEnd::soft, start);
        }
    }

    [[nodiscard]] qsizetype firstPieceOf(QStringView line) const {
        const qsizetype room = longestPiece - before_.size();
        return room > 0 ? softBreakIn(line, room) : restOfCluster(before_, line);
    }

    void endBlock(LineEnd end, std::size_t nextStart) {
        blocks_.text.append(QChar::ParagraphSeparator);
        blocks_.ends.push_back(end);
        blocks_.starts.push_back(nextStart);
        before_ = {};
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
    QStringView before_; ///< what already stands in the block
    QString line_;
    TextBlocks blocks_;
};

} // namespace

TextBlocks cutIntoBlocks(std::string_view utf8, QStringView before) {
    return BlockCutter(utf8, before).cut();
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
