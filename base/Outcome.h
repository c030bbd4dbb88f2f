#pragma once

#include "base/fatalError.h"

#include <utility>
#include <variant>

namespace lexiform {

/// Stands for the value of an operation that only succeeds or fails.
struct Done {
    bool operator==(const Done&) const = default;
};

/// The result of an operation that can fail in a way that its caller must answer: either a value or
/// a fault. Reading the side that is not there is a broken invariant and stops the program.
template <typename Value, typename Fault>
class [[nodiscard]] Outcome {
public:
    // Implicit, so that a function returns either side as it stands.
    Outcome(Value value) : content_(std::in_place_index<0>, std::move(value)) {}
    Outcome(Fault fault) : content_(std::in_place_index<1>, std::move(fault)) {}

    [[nodiscard]] bool succeeded() const { return content_.index() == 0; }

    [[nodiscard]] const Value& value() const& {
        if (!succeeded()) fatalError("the value of a failed outcome was read");
        return *std::get_if<0>(&content_);
    }

    [[nodiscard]] Value value() && {
        if (!succeeded()) fatalError("the value of a failed outcome was read");
        return std::move(*std::get_if<0>(&content_));
    }

    [[nodiscard]] const Fault& fault() const {
        if (succeeded()) fatalError("the fault of a successful outcome was read");
        return *std::get_if<1>(&content_);
    }

private:
    std::variant<Value, Fault> content_;
};

} // namespace lexiform
