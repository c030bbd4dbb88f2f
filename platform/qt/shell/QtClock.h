#pragma once

#include "ports/Clock.h"

#include <QDateTime>

namespace lexiform::qt {

/// The system's clock, to a millisecond.
class QtClock : public Clock {
public:
    [[nodiscard]] double secondsSinceReferenceDate() const override {
        constexpr double millisecondsInSecond = 1000;
        static const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
        return static_cast<double>(reference.msecsTo(QDateTime::currentDateTimeUtc())) / millisecondsInSecond;
    }
};

} // namespace lexiform::qt
