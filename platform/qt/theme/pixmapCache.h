#pragma once

namespace lexiform::qt {

/// Lets Qt keep no more drawn pictures than a window shows. Each file dialog has icons of its own, whose
/// pictures Qt keeps when the dialog is gone, though nothing finds them again: with Qt's own limit of 10 MB
/// the program grows for dozens of dialogs.
void limitPixmapCache();

} // namespace lexiform::qt
