#pragma once

#include <string>

namespace lexiform {

/// A field that shows a plain text in one style of its own.
class TextField {
public:
    virtual ~TextField() = default;

    virtual void setStringValue(const std::string& value) = 0;
};

} // namespace lexiform
