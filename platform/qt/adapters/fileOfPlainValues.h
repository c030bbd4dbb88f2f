#pragma once

#include <QString>

namespace lexiform::qt {

/// The path given, of an INI file that may be opened as settings. One that holds whole objects of the
/// toolkit's, which this program never writes, is set aside under its name and ".damaged" first: the
/// toolkit trusts the lengths in them, and a false one takes all memory.
QString fileOfPlainValues(const QString& path);

} // namespace lexiform::qt
