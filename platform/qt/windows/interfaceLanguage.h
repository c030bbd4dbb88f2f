#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QString>

namespace lexiform::qt {

/// Has the interface speak the first of the languages of `locale` that it knows: English, or one of those
/// translated in `folder`; English where it knows none. To be called before the first window is made.
void translateInterface(QCoreApplication& application, const QLocale& locale, const QString& folder);

} // namespace lexiform::qt
