#pragma once

#include "linguistics/Analysis.h"

#include <memory>
#include <string>
#include <string_view>

namespace lexiform::cli {

/// Writes analysed texts in one format. All output is appended to the `out` of each call.
class TokenWriter {
public:
    virtual ~TokenWriter() = default;

    /// Before the first text.
    virtual void start(std::string& /*out*/) {}
    /// Before each text; `name` is empty when there is only one.
    virtual void startText(std::string_view /*name*/, std::string& /*out*/) {}
    /// The paragraphs of `text`, in order.
    virtual void paragraph(const linguistics::Paragraph& paragraph, std::string_view text,
                           std::string& out) = 0;
    /// After each text.
    virtual void endText(std::string& /*out*/) {}
};

/// The names of the formats, in the order in which help lists them.
inline constexpr const char* formatNames[] = {"conllu", "tsv", "ansi"};

/// A writer of the named format; null for a name that is none.
[[nodiscard]] std::unique_ptr<TokenWriter> writerFor(std::string_view format);

} // namespace lexiform::cli
