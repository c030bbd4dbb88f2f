#pragma once

#include <QMargins>
#include <QPlainTextDocumentLayout>

#include <functional>

namespace lexiform::qt {

/// Lays out a pane's document block by block, as each comes into view, with a line height and
/// margins of its own.
class PaneDocumentLayout : public QPlainTextDocumentLayout {
    Q_OBJECT

public:
    /// Called before a block is measured or painted; may set the formats of its layout.
    using BlockPreparation = std::function<void(const QTextBlock&)>;

    /// Breaks a block's text into lines of a width. The layout of a block does not know its text.
    using LineBreaking = std::function<void(QTextLayout& layout, QStringView text, qreal width)>;

    PaneDocumentLayout(QTextDocument* document, const QMargins& margins);

    /// The least distance of two lines; a line of taller characters takes what it needs.
    void setPitch(qreal pitch);
    void setBlockPreparation(BlockPreparation preparation) { preparation_ = std::move(preparation); }
    /// In the place of breaking lines between words; for short texts that begin on the left.
    void setLineBreaking(LineBreaking breaking) { lineBreaking_ = std::move(breaking); }
    /// Sets the formats of a block without the news of a change to the document.
    void setFormatsQuietly(const QTextBlock& block, const QList<QTextLayout::FormatRange>& formats);

    /// To be set while the pane paints.
    void setPainting(bool painting) { painting_ = painting; }

    [[nodiscard]] QSizeF documentSize() const override;
    /// Where the block's lines stand counts from the rectangle's top. The first block's lines begin
    /// above it: see `spaceLines`.
    [[nodiscard]] QRectF blockBoundingRect(const QTextBlock& block) const override;

protected:
    void documentChanged(int from, int removed, int added) override;

private:
    void breakLines(const QTextBlock& block) const;
    [[nodiscard]] qreal spaceLines(const QTextBlock& block) const;

    QMargins margins_;
    qreal pitch_ = 0;
    BlockPreparation preparation_;
    LineBreaking lineBreaking_;
    bool quiet_ = false;
    bool painting_ = false;
};

} // namespace lexiform::qt
