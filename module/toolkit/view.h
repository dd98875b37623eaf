#pragma once
/// What every control shares: the host's view, and texts and pictures by id.

#include <cmath>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "border/interfaces/values.h"
#include "toolkit/notifier.h"
#include "toolkit/resource_lookup.h"

namespace ox::toolkit {

/// Base of the elements. They stay where they are: the host points at them.
template <class Impl>
class with_view : public Impl {
public:
    with_view() = default;
    with_view(const with_view&) = delete;
    with_view& operator=(const with_view&) = delete;

    void attach_view(custom_pointer view) override { notifier_.attach(view); }

protected:
    ~with_view() = default;

    custom_pointer view() const { return notifier_.view(); }
    /// The last act of whoever calls it: the view may end the element.
    void changed() { notifier_.tell(); }
    /// Stores a visible value; the view hears only of real changes.
    template <class T>
    void update(T& field, std::type_identity_t<T> value) {
        if (field == value) return;
        if constexpr (std::is_floating_point_v<T>)
            if (std::isnan(field) && std::isnan(value)) return;
        field = std::move(value);
        changed();
    }
    life& own_life() { return notifier_.element_life(); }

private:
    friend class in_one_step;
    notifier notifier_;
};

/// Base of the elements that can be greyed.
template <class Impl>
class with_enabled : public with_view<Impl> {
public:
    bool enabled() override { return enabled_; }
    void set_enabled(bool enabled) { this->update(enabled_, enabled); }

protected:
    ~with_enabled() = default;

private:
    bool enabled_ = true;
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
