#pragma once

namespace lexiform {

/// Shows that the program is busy.
class ProgressIndicator {
public:
    virtual ~ProgressIndicator() = default;

    virtual void setHidden(bool hidden) = 0;
};

} // namespace lexiform
