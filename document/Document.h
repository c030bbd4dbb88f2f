#pragma once

#include "ports/DocumentBase.h"
#include "ports/Storyboard.h"

#include <memory>
#include <string>
#include <string_view>

namespace lexiform {

/// The one type name that is known by its text: plain text in UTF-8. Compared exactly.
inline constexpr std::string_view plainTextType = "public.plain-text";

/// The error of a document that cannot be read or written.
inline constexpr std::string_view NSOSStatusErrorDomain = "NSOSStatusErrorDomain";
inline constexpr int unimplementedStatus = -4;
[[nodiscard]] DocumentError documentError();

/// One file, or a new text, and the window that shows it. Reading only keeps the bytes; they are
/// decoded and enter the window's input pane once, when the window is made. Every type but plain text is
/// read by what the bytes are, and written as RTF.
class Document : public DocumentBase {
public:
    /// A new, empty document; `storyboard` makes its window.
    explicit Document(std::shared_ptr<Storyboard> storyboard);

    /// Documents are never saved behind the user's back.
    static constexpr bool autosavesInPlace = false;

    /// The path that the document was last read from.
    std::string thePath;
    /// The file's bytes exactly as last read.
    std::string theData;
    /// The type under which they were read, which decides how they are decoded.
    std::string theType;

    /// Keeps the bytes and the type. Empty bytes fail with the document error and change nothing; a
    /// document without a file location stops the program.
    Outcome<Done, DocumentError> readFromData(std::string bytes, std::string type) override;

    /// Makes the window and hands it the decoded text. Plain text that is not UTF-8 leaves the input pane
    /// as the window made it, bytes of any other type that no reader takes empty it, both without a
    /// message. A storyboard without
    /// the document scene, or whose scene is no window controller, stops the program.
    void makeWindowControllers() override;

    /// What is saved is the window's output pane, not the text that was opened: as "public.plain-text" its
    /// characters in UTF-8 without a byte order mark (nothing at all when they cannot be encoded), as any
    /// other type RTF with its colours. The type under which the document was read has no part in it. A
    /// window whose content is no analysis is the document error; a document without a window, and an
    /// output pane that is absent or has no text storage, stop the program.
    Outcome<std::string, DocumentError> dataOfType(std::string_view type) override;

private:
    std::shared_ptr<Storyboard> storyboard_;
};

} // namespace lexiform
