#pragma once

#include <string>
#include <utility>

#include "base/utf8.h"
#include "border/call.h"
#include "border/interfaces/values.h"

namespace oxhost::shell {

/// Keeps the last text it was handed.
struct text_reader final : ox::string_visitor_impl {
    std::string text;
    void visit(const wchar_t* handed) override { text = to_utf8(handed); }
};

/// The text that `Operation` of a bundle's object hands to a string visitor, which is its last argument.
template <auto Operation, class... A>
std::string read_utf8(ox::custom_pointer object, A&&... arguments) {
    text_reader reader;
    ox::call<Operation>(object, std::forward<A>(arguments)...,
                        ox::make_pointer<ox::string_visitor_impl>(reader));
    return std::move(reader.text);
}

}  // namespace oxhost::shell
