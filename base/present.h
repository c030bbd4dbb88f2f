#pragma once

#include "base/fatalError.h"

#include <functional>
#include <memory>
#include <optional>

namespace lexiform {

/// What a reference refers to. Absence, which for a weak reference includes a target that has been
/// destroyed, is a broken invariant and stops the program.
template <typename T>
[[nodiscard]] T& present(const std::shared_ptr<T>& reference) {
    if (!reference) fatalError("a required object is not connected");
    return *reference;
}

template <typename T>
[[nodiscard]] T& present(const std::unique_ptr<T>& reference) {
    if (!reference) fatalError("a required object is not connected");
    return *reference;
}

/// A function that is there to be called.
template <typename Result, typename... Arguments>
[[nodiscard]] const std::function<Result(Arguments...)>&
present(const std::function<Result(Arguments...)>& function) {
    if (!function) fatalError("a required function is not connected");
    return function;
}

/// Keeps the target of a weak reference alive for as long as the caller holds the result.
template <typename T>
[[nodiscard]] std::shared_ptr<T> present(const std::weak_ptr<T>& reference) {
    std::shared_ptr<T> target = reference.lock();
    if (!target) fatalError("a required object is not connected");
    return target;
}

template <typename T>
[[nodiscard]] const T& present(const std::optional<T>& value) {
    if (!value) fatalError("a required value is absent");
    return *value;
}

} // namespace lexiform
