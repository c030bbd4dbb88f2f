#include "linguistics/language/LetterText.h"

#include "base/Unicode.h"
#include "linguistics/text/AsciiText.h"
#include "linguistics/text/Utf8.h"

#include <unicode/utf8.h>

namespace lexiform::linguistics {

namespace {

constexpr char16_t outsidePlane = 0xFFFF;

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

bool isAsciiBlank(char byte) {
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

// A piece may start inside a word: its first word is left out where the word's end is near.
std::string_view pieceAt(std::string_view text, std::size_t start, std::size_t length) {
    std::string_view piece = text.substr(start, length);
    if (start > 0) {
        const std::size_t blank = piece.substr(0, 32).find(' ');
        if (blank != std::string_view::npos) piece.remove_prefix(blank);
        while (!piece.empty() && isContinuation(piece.front()))
            piece.remove_prefix(1);
    }
    while (start + length < text.size() && !piece.empty() &&
           static_cast<unsigned char>(piece.back()) >= 0x80 &&
           isContinuation(text[static_cast<std::size_t>(piece.data() - text.data()) + piece.size()]))
        piece.remove_suffix(1);
    return piece;
}

// Whether the word that ends at `end` is part of an address or a handle.
bool isInAddress(std::string_view text, std::size_t word, std::size_t end) {
    if (word > 0 && text[word - 1] == '@') return true;
    const std::string_view rest = text.substr(end);
    return rest.starts_with("://") || rest.starts_with('@') ||
           (rest.starts_with('.') && text.substr(word, end - word) == "www");
}

std::size_t nextBlank(std::string_view text, std::size_t at) {
    while (at < text.size() && !isAsciiBlank(text[at]))
        ++at;
    return at;
}

// Whether there may be marks that composition joins with the letter before them: U+0300 to U+037F.
bool mayHoldJoiningMark(std::string_view text) {
    return text.find('\xCC') != std::string_view::npos || text.find('\xCD') != std::string_view::npos;
}

} // namespace

LetterText::LetterText(std::string_view text, std::size_t most) : words_(1, u' ') {
    if (text.size() <= most) {
        words_.reserve(text.size() + 2);
        add(text);
    } else {
        words_.reserve(most + 8);
        const std::size_t length = most / 3;
        for (const std::size_t start : {std::size_t{0}, (text.size() - length) / 2, text.size() - length})
            add(pieceAt(text, start, length));
    }
    if (words_.size() == 1) words_.clear();
}

void LetterText::add(std::string_view text) {
    if (mayHoldJoiningMark(text))
        addWords(composed(text));
    else
        addWords(text);
}

void LetterText::addWords(std::string_view text) {
    const LetterTable& table = LetterTable::table();
    std::size_t word = 0; // the byte where the word that is being read starts
    for (std::size_t at = 0; at <= text.size();) {
        const CodePoint point = at < text.size() ? codePointAt(text, at) : CodePoint{U' ', 1, true};
        const bool inWord = words_.size() > wordStart_;
        if (point.valid && table.writingOf(point.value) != Writing::none) {
            if (!inWord) word = at;
            words_ +=
                point.value < 0x10000 ? table.lowerOf(static_cast<char16_t>(point.value)) : outsidePlane;
        } else if (inWord && !isSilent(point.value)) {
            if (isInAddress(text, word, at)) {
                words_.resize(wordStart_);
                at = nextBlank(text, at);
                continue;
            }
            endWord();
        }
        at += point.length;
    }
}

void LetterText::endWord() {
    if (words_.size() == wordStart_) return;
    const LetterTable& table = LetterTable::table();
    for (std::size_t at = wordStart_; at < words_.size(); ++at)
        ++counts_[static_cast<std::size_t>(words_[at] == outsidePlane ? Writing::other
                                                                      : table.writingOf(words_[at]))];
    letters_ += static_cast<std::uint32_t>(words_.size() - wordStart_);
    words_ += u' ';
    wordStart_ = words_.size();
}

std::string LetterText::utf8() const {
    std::string text;
    text.reserve(words_.size() * 2);
    for (const char16_t unit : words_) {
        if (unit == outsidePlane) continue;
        char bytes[U8_MAX_LENGTH];
        std::int32_t length = 0;
        U8_APPEND_UNSAFE(bytes, length, static_cast<UChar32>(unit));
        text.append(bytes, static_cast<std::size_t>(length));
    }
    return text;
}

} // namespace lexiform::linguistics
