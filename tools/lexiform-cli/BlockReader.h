#pragma once

#include "base/Outcome.h"
#include "tools/lexiform-cli/TextBlock.h"
#include "tools/lexiform-cli/inputNames.h"

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace lexiform::cli {

/// Reads a text block by block, so that a text of any length takes a bounded memory. How it is cut
/// depends on the text alone: what the engine says of the blocks is what it says of the whole.
class BlockReader {
public:
    /// A reader of the file of that name, or of standard input for "-", in the named type (documentText.h)
    /// or, when that is empty, in the one that its content has. What begins as a plain text in UTF-8, and
    /// every file whose name ends in ".txt", is read as that; any other is held and decoded as a whole. The
    /// fault says why it cannot be read.
    [[nodiscard]] static Outcome<BlockReader, InputFault> open(const std::string& name,
                                                               const std::string& type = "");

    /// The next block; nothing at the end. A fault where reading fails and at the first byte that is not
    /// UTF-8; the blocks before it have been given by then.
    [[nodiscard]] Outcome<std::optional<TextBlock>, InputFault> next();

private:
    struct CloseFile {
        void operator()(std::FILE* file) const;
    };
    using File = std::unique_ptr<std::FILE, CloseFile>;

    BlockReader(File file, std::string shownName)
        : file_(std::move(file)), shownName_(std::move(shownName)) {}

    [[nodiscard]] std::optional<InputFault> fill();
    [[nodiscard]] std::optional<InputFault> fillTo(std::size_t wanted);
    [[nodiscard]] std::size_t read(char* to, std::size_t count);
    [[nodiscard]] std::optional<InputFault> decodeAll(const std::string& type);
    [[nodiscard]] std::size_t blockEnd() const;
    [[nodiscard]] std::optional<InputFault> check(const std::string& text) const;

    File file_; ///< null once its bytes are decoded
    std::string decoded_;
    std::size_t taken_ = 0; ///< of what is decoded
    std::string shownName_;
    std::string buffer_;     ///< what has been read and not been given
    std::size_t offset_ = 0; ///< of the buffer in the text
    bool atEnd_ = false;
};

} // namespace lexiform::cli
