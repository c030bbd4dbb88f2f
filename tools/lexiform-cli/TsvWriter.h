#pragma once

#include "tools/lexiform-cli/TokenWriter.h"

#include <cstddef>

namespace lexiform::cli {

/// A table with a heading, one token a line, columns parted by tabs, white space left out. Sentences
/// are numbered from 1; a token's start and length count bytes of its text.
class TsvWriter : public TokenWriter {
public:
    void start(std::string& out) override;
    void paragraph(const linguistics::Paragraph& paragraph, std::string_view text, std::string& out) override;

private:
    std::size_t sentences_ = 0;
};

} // namespace lexiform::cli
