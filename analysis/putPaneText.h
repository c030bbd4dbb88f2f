#pragma once

#include "ports/TextPane.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace lexiform {

/// How a text enters a pane.
enum class PaneOperation : std::uint8_t { replace, append };

/// Puts `text`, in the default text colour, into a pane. An absent pane stops the program; a pane
/// without a text storage silently receives nothing.
void putPaneText(std::string_view text, const std::shared_ptr<TextPane>& pane, PaneOperation operation);

} // namespace lexiform
