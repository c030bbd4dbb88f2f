#pragma once

#include <cstddef>
#include <string_view>

namespace lexiform::linguistics {

/// The bytes of the web address, e-mail address, handle or hash tag with which `chunk`, a stretch
/// without white space, starts; 0 if it starts with none. Punctuation after it is not part of it.
/// Reads the chunk once at most for what it accepts, and a bounded stretch for what it refuses.
[[nodiscard]] std::size_t lengthOfAddress(std::string_view chunk);

/// The bytes of the HTML character reference with which `chunk` starts ("&amp;", "&#39;"), with its
/// repetitions; 0 if none.
[[nodiscard]] std::size_t lengthOfEntities(std::string_view chunk);

/// The bytes of the emoticon with which `chunk` starts, 0 if none. `startsChunk` says that white space
/// stands before it: some emoticons would be found inside other things.
[[nodiscard]] std::size_t lengthOfEmoticon(std::string_view chunk, bool startsChunk);

/// The bytes of a word that starts with an apostrophe ("'em", "'60s", "’cause"), 0 if none.
[[nodiscard]] std::size_t lengthOfElision(std::string_view chunk);

/// The bytes of the enclitic with which `chunk` starts, apostrophe included ("'s", "’ll"), 0 if none.
[[nodiscard]] std::size_t lengthOfEnclitic(std::string_view chunk);

/// The bytes of a figure that starts with a mark (".25", "+44"), 0 if none.
[[nodiscard]] std::size_t lengthOfMarkedFigure(std::string_view chunk);

/// Whether `chunk` is a word broken off ("th-", "s-"), as speech is written down.
[[nodiscard]] bool isBrokenOff(std::string_view chunk);

/// The bytes of the apostrophe with which `text` starts, 0 if none.
[[nodiscard]] std::size_t lengthOfApostrophe(std::string_view text);

} // namespace lexiform::linguistics
