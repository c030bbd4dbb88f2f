#include "platform/qt/panes/LineEnd.h"

#include <array>
#include <cstddef>

namespace lexiform::qt {

QStringView charactersOf(LineEnd end) {
    static constexpr std::array<QStringView, 7> characters = {
        u"\n", u"\r\n", u"\r", u"\u2029", u"\uFDD0", u"\uFDD1", u"",
    };
    return characters[static_cast<std::size_t>(end)];
}

} // namespace lexiform::qt
