#pragma once
/// What every control shares: the host's view, and texts and pictures by id.

#include <cstdint>

#include "border/call.h"
#include "border/interfaces/layouts.h"
#include "border/interfaces/values.h"
#include "toolkit/resource_lookup.h"

namespace ox::toolkit {

/// Base of the elements: keeps the view that the host attached last. The view belongs to the host and
/// must outlive the element or be replaced by an empty one.
template <class Impl>
class with_view : public Impl {
public:
    void attach_view(custom_pointer view) override { view_ = view; }

protected:
    ~with_view() = default;

    custom_pointer view() const { return view_; }
    void changed() const { call<&element_view_slots::changed>(view_); }

    /// Stores a visible value; the view hears only of real changes.
    template <class T>
    void update(T& field, T value) {
        if (field == value) return;
        field = std::move(value);
        changed();
    }

private:
    custom_pointer view_{};
};

/// Id 0 means no text.
inline void visit_text_of(std::int32_t id, custom_pointer string_visitor) {
    if (id != 0) resource::visit_string(id, string_visitor);
}

/// Width and height of the module's and the host's small pictures, in pixels.
inline constexpr std::uint32_t small_picture = 16;

/// A bitmap resource; its pixels are loaded each time the host asks for them.
class bitmap final : public bitmap_impl {
public:
    explicit bitmap(std::int32_t id, std::uint32_t width = small_picture,
                    std::uint32_t height = small_picture)
        : id_(id), width_(width), height_(height) {}

    std::uint32_t width() override { return width_; }
    std::uint32_t height() override { return height_; }
    void visit_pixels(custom_pointer bytes_visitor) override {
        resource::visit_bitmap(id_, resource::colour_key::none, bytes_visitor);
    }

private:
    std::int32_t id_;
    std::uint32_t width_;
    std::uint32_t height_;
};

/// Id 0 means no picture.
inline void visit_picture_of(std::int32_t id, custom_pointer bitmap_visitor) {
    if (id == 0) return;
    bitmap picture(id);
    call<&bitmap_visitor_impl::visit>(bitmap_visitor, make_pointer<bitmap_impl>(picture));
}

}  // namespace ox::toolkit
