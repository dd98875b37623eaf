#pragma once
/// The module's own receivers of values.

#include <string>
#include <utility>

#include "border/binding.h"
#include "border/interfaces/values.h"

namespace ox {

/// Replaces the content of a caller's string; a null text is an empty one. A visitor that is never called
/// leaves the string as it was.
class stdwstring_visitor final : public string_visitor_impl {
public:
    explicit stdwstring_visitor(std::wstring& target) : target_(target) {}
    void visit(const wchar_t* text) override { target_ = text ? text : L""; }

private:
    std::wstring& target_;
};

/// The text that `visit` hands to the string visitor it is given; empty when it hands over none.
template <class Visit>
std::wstring read_text(Visit&& visit) {
    std::wstring text;
    stdwstring_visitor visitor(text);
    std::forward<Visit>(visit)(make_pointer<string_visitor_impl>(visitor));
    return text;
}

namespace detail {

/// Turns a colour-keyed image into one with alpha: pixels of the colour that the last row begins with
/// become transparent, all others opaque. One and three channels come out as four, top row first;
/// images of other channel counts pass unchanged. An image without data is none.
class key_visitor final : public thrice_interleaved_bytes_visitor_impl {
public:
    explicit key_visitor(custom_pointer wrapped) : wrapped_(wrapped) {}
    void visit(std::int32_t rows, std::int32_t row_stride, std::int32_t columns, std::int32_t pixel_stride,
               std::int32_t channels, std::int32_t channel_stride, const std::uint8_t* data) override;

private:
    custom_pointer wrapped_;
};

}  // namespace detail

}  // namespace ox
