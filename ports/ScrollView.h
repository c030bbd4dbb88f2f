#pragma once

namespace lexiform {

/// What scrolls a text pane. The core only holds it for the window's layout and asks nothing of it.
class ScrollView {
public:
    virtual ~ScrollView() = default;
};

} // namespace lexiform
