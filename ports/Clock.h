#pragma once

namespace lexiform {

/// Tells the time of day.
class Clock {
public:
    virtual ~Clock() = default;

    /// Seconds since the start of 2001 in UTC.
    [[nodiscard]] virtual double secondsSinceReferenceDate() const = 0;
};

} // namespace lexiform
