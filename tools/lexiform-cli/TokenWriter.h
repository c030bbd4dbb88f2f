#pragma once

#include "linguistics/text/Analysis.h"
#include "tools/lexiform-cli/Piece.h"
#include "tools/lexiform-cli/TextBlock.h"

#include <memory>
#include <string>
#include <string_view>

namespace lexiform::cli {

/// Writes one block of an analysed text in one format.
class TokenWriter {
public:
    virtual ~TokenWriter() = default;

    /// The paragraphs of `block`, in order; their ranges count from its start.
    virtual void paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& out) = 0;
    /// After the last paragraph of the block.
    virtual void endBlock(Piece& /*out*/) {}
};

/// A format for analysed texts: what stands around their blocks, and a writer for these.
class TokenFormat {
public:
    virtual ~TokenFormat() = default;

    /// How deep an analysis this format tells of.
    [[nodiscard]] virtual linguistics::Depth depth() const { return linguistics::Depth::lemmas; }
    /// Before the first text and after the last.
    [[nodiscard]] virtual std::string start() const { return ""; }
    [[nodiscard]] virtual std::string end() const { return ""; }
    /// Before each text; `name` is empty when there is only one, `first` tells that none came before.
    [[nodiscard]] virtual std::string startText(std::string_view /*name*/, bool /*first*/) const {
        return "";
    }
    /// After each text.
    [[nodiscard]] virtual std::string endText() const { return ""; }

    [[nodiscard]] virtual std::unique_ptr<TokenWriter> writer() const = 0;
};

/// The names of the formats, in the order in which help lists them.
inline constexpr const char* formatNames[] = {"conllu", "tsv", "json", "ansi", "rtf", "html"};

/// The named format; null for a name that is none.
[[nodiscard]] std::unique_ptr<TokenFormat> formatNamed(std::string_view name);

} // namespace lexiform::cli
