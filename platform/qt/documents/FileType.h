#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <string_view>

namespace lexiform::qt {

inline constexpr std::string_view richTextType = "public.rtf";

/// The type name of a file. The extension decides where it is a known one; else the file is plain text
/// when its bytes are UTF-8, or of the type that its content tells.
[[nodiscard]] std::string typeOfFile(const QString& path, std::string_view bytes);

/// Whether files of the type are written; all others are only viewed.
[[nodiscard]] bool isWritable(std::string_view type);

/// What new documents are: rich text, for what is saved is the output pane, and plain text would lose its
/// colours.
inline constexpr std::string_view newDocumentType = richTextType;

/// The usual extension of a writable type, without its dot.
[[nodiscard]] QString extensionOf(std::string_view type);

/// The filter of a writable type in a save dialog, and those of an open dialog, the usual one first.
[[nodiscard]] QString nameFilterOf(std::string_view type);
[[nodiscard]] QStringList openFilters();

} // namespace lexiform::qt
