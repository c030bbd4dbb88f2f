#pragma once

#include "ports/Window.h"

#include <cstdint>
#include <initializer_list>

namespace lexiform {

/// A place on the desktop, in points.
struct ContentRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const ContentRect&) const = default;
};

/// What a window has round its content, as a set of bits.
enum class StyleMask : std::uint8_t {
    borderless = 0,
    titled = 1,
    closable = 2,
    miniaturisable = 4,
    resizable = 8
};

/// All of the parts at once. Not an operator, which would hide the toolkit's from every file here.
[[nodiscard]] constexpr StyleMask styleOf(std::initializer_list<StyleMask> parts) {
    unsigned bits = 0;
    for (const StyleMask part : parts)
        bits |= static_cast<unsigned>(part);
    return static_cast<StyleMask>(bits);
}

/// How a window's picture is kept.
enum class BackingStore : std::uint8_t { retained, nonretained, buffered };

/// The base of the application's window class: it keeps what the window was made with.
class WindowBase : public Window {
public:
    /// `defer`: the desktop's own window is made only when this one is first shown.
    WindowBase(const ContentRect& contentRect, StyleMask style, BackingStore backing, bool defer)
        : contentRect_(contentRect), style_(style), backing_(backing), defer_(defer) {}

    [[nodiscard]] const ContentRect& contentRect() const { return contentRect_; }
    [[nodiscard]] StyleMask styleMask() const { return style_; }
    [[nodiscard]] BackingStore backingType() const { return backing_; }
    [[nodiscard]] bool isDeferred() const { return defer_; }

private:
    ContentRect contentRect_;
    StyleMask style_;
    BackingStore backing_;
    bool defer_;
};

} // namespace lexiform
