#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace ox::toolkit {

template <class Signature>
class callback;

/// A function that an element calls for its owner. It may do anything meanwhile, as set another in its place
/// or end the element: it lives until it returns. Unset, it does nothing and answers the empty value.
template <class R, class... A>
class callback<R(A...)> {
public:
    callback() = default;
    callback(std::nullptr_t) {}
    template <class F>
    requires(!std::is_same_v<F, callback> && std::is_invocable_r_v<R, F&, A...>) callback(F function)
        : function_(std::make_shared<std::function<R(A...)>>(std::move(function))) {}

    explicit operator bool() const { return function_ && *function_; }
    R operator()(A... arguments) const {
        const auto called = function_;
        return called && *called ? (*called)(std::forward<A>(arguments)...) : R();
    }

private:
    std::shared_ptr<std::function<R(A...)>> function_;
};

}  // namespace ox::toolkit
