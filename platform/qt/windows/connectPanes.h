#pragma once

#include "analysis/WordDetails.h"
#include "platform/qt/windows/DocumentPanes.h"
#include "platform/qt/windows/FindCommands.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <optional>

namespace lexiform::qt {

/// Tells of the token that the output shows at a byte of its text.
using WordInquiry = std::function<std::optional<WordDetails>(std::size_t byte)>;

/// The forms in which a listed word stands in the output; none where they are not known.
using FormInquiry = std::function<QStringList(const QString& word)>;

/// What the panes ask of their window.
struct PaneInquiries {
    WordInquiry wordAt;
    FormInquiry formsOf;
};

/// Lets the panes of a window work on one another: a line of the key dims the other colours of the output,
/// a double click in the concordance finds the word in the output, and the output tells in words what is
/// known of the word at the caret (to assistive technology) and under the pointer: by inquiry, or else
/// by the key.
void connectPanes(DocumentPanes& panes, FindCommands& find, const PaneInquiries& inquiries);

/// The word of a line of the concordance, "word (3)"; empty for any other line.
[[nodiscard]] QString listedWord(const QString& line);

} // namespace lexiform::qt
