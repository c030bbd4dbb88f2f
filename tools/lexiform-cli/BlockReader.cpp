#include "tools/lexiform-cli/BlockReader.h"

#include "base/Unicode.h"
#include "linguistics/segmentation/ParagraphSplitter.h"
#include "tools/lexiform-cli/documentText.h"

#include <cerrno>
#include <cstring>

namespace lexiform::cli {

namespace {

// Small enough for several to be in work, large enough for the hand-over to cost nothing.
constexpr std::size_t blockSize = std::size_t{128} * 1024;

// How far past its start a paragraph may look to find its end.
constexpr std::size_t lookAhead = linguistics::longestParagraph + 4;

} // namespace

void BlockReader::CloseFile::operator()(std::FILE* file) const {
    if (file != stdin) std::fclose(file);
}

Outcome<BlockReader, InputFault> BlockReader::open(const std::string& name, const std::string& type) {
    const bool isStandard = name == standardInput;
    File file(isStandard ? stdin : std::fopen(name.c_str(), "rb"));
    if (!file) return InputFault{name + ": " + std::strerror(errno)};
    BlockReader reader(std::move(file), isStandard ? "standard input" : name);
    if (type == plainType || (type.empty() && name.ends_with(".txt"))) return reader;
    if (auto fault = reader.fill()) return *std::move(fault);
    if (type.empty() && beginsAsPlainUtf8(reader.buffer_, reader.atEnd_)) return reader;
    if (auto fault = reader.decodeAll(type)) return *std::move(fault);
    return reader;
}

Outcome<std::optional<TextBlock>, InputFault> BlockReader::next() {
    if (auto fault = fill()) return *std::move(fault);
    if (buffer_.empty()) return std::optional<TextBlock>();
    const std::size_t end = blockEnd();
    TextBlock block{buffer_.substr(0, end), offset_};
    if (auto fault = check(block.text)) return *std::move(fault);
    buffer_.erase(0, end);
    offset_ += end;
    return std::optional(std::move(block));
}

std::optional<InputFault> BlockReader::fill() {
    return fillTo(blockSize + 2 * lookAhead);
}

std::optional<InputFault> BlockReader::fillTo(std::size_t wanted) {
    while (!atEnd_ && buffer_.size() < wanted) {
        const std::size_t before = buffer_.size();
        buffer_.resize(wanted);
        errno = 0;
        const std::size_t count = read(buffer_.data() + before, wanted - before);
        buffer_.resize(before + count);
        if (file_ && std::ferror(file_.get()) != 0)
            return InputFault{shownName_ + ": " + std::strerror(errno)};
        atEnd_ = file_ ? std::feof(file_.get()) != 0 : taken_ == decoded_.size();
    }
    return std::nullopt;
}

std::size_t BlockReader::read(char* to, std::size_t count) {
    if (file_) return std::fread(to, 1, count, file_.get());
    count = decoded_.copy(to, count, taken_);
    taken_ += count;
    return count;
}

std::optional<InputFault> BlockReader::decodeAll(const std::string& type) {
    while (!atEnd_)
        if (auto fault = fillTo(2 * buffer_.size() + blockSize)) return fault;
    auto text = documentText(buffer_, type);
    if (!text.succeeded()) return InputFault{shownName_ + ": " + text.fault().message};
    decoded_ = std::move(text).value();
    file_.reset();
    buffer_.clear();
    atEnd_ = false;
    return std::nullopt;
}

// The start of the first paragraph past the size of a block whose own end is sure to be in the buffer.
std::size_t BlockReader::blockEnd() const {
    std::size_t end = 0;
    while (end < buffer_.size() && end < blockSize && (atEnd_ || buffer_.size() - end >= lookAhead))
        end = linguistics::paragraphAt(buffer_, end).end();
    return end;
}

std::optional<InputFault> BlockReader::check(const std::string& text) const {
    const auto invalid = firstInvalidUtf8(text);
    if (!invalid) return std::nullopt;
    return InputFault{shownName_ + ": not UTF-8: the byte at offset " + std::to_string(offset_ + *invalid) +
                      " starts no character"};
}

} // namespace lexiform::cli
