#pragma once

#include <QApplication>

#include <memory>

namespace lexiform::qt {

/// The application object. Where it cannot be made, because the display does not answer, say, this ends the
/// program with words on standard error and a failure status; Qt by itself would abort. Only one may live at
/// a time; `argc` and `argv` are to outlive it.
[[nodiscard]] std::unique_ptr<QApplication> makeApplication(int& argc, char** argv);

} // namespace lexiform::qt
