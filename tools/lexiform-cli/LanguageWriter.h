#pragma once

#include "tools/lexiform-cli/TokenWriter.h"

#include <memory>

namespace lexiform::cli {

/// A line for each paragraph or sentence: the code of its language, a tab, and its text.
class LanguageWriter : public TokenWriter {
public:
    explicit LanguageWriter(bool bySentence) : bySentence_(bySentence) {}

    void paragraph(const linguistics::Paragraph& paragraph, const TextBlock& block, Piece& out) override;

private:
    bool bySentence_;
};

class LanguageFormat : public TokenFormat {
public:
    explicit LanguageFormat(bool bySentence) : bySentence_(bySentence) {}

    [[nodiscard]] linguistics::Depth depth() const override { return linguistics::Depth::languages; }
    [[nodiscard]] std::unique_ptr<TokenWriter> writer() const override {
        return std::make_unique<LanguageWriter>(bySentence_);
    }

private:
    bool bySentence_;
};

} // namespace lexiform::cli
