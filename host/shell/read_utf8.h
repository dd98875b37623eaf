#pragma once

#include <string>
#include <utility>

#include "framework/call.h"
#include "framework/value_visitors.h"
#include "session/string_adapter.h"

namespace oxhost::shell {

/// The text that `Operation` of a bundle's object hands to a string visitor, which is its last argument.
template <auto Operation, class... A>
std::string read_utf8(ox::custom_pointer object, A&&... arguments) {
    return to_utf8(ox::read_text([&](ox::custom_pointer string_visitor) {
        ox::call<Operation>(object, std::forward<A>(arguments)..., string_visitor);
    }));
}

}  // namespace oxhost::shell
