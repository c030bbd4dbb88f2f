#pragma once

#include <QStringView>

#include <cstdint>

namespace lexiform::qt {

/// What stands in the text between one block of a document and the next. The editor knows only one
/// kind of block end, so that each end which is not the text's own is remembered as one of these.
/// `soft` stands for no character at all: a block that is broken only because a line is very long.
enum class LineEnd : std::uint8_t { lf, crlf, cr, paragraphSeparator, frameBegin, frameEnd, soft };

/// The characters of a line end; empty for `soft`.
[[nodiscard]] QStringView charactersOf(LineEnd end);

} // namespace lexiform::qt
