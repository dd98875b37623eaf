#pragma once
/// From a numeric id to what the host draws.
///
/// A positive id names a resource of this module; the host's localizer answers for it when there is
/// one. An id of 0 or below names resource number minus id of the host's basic module and never goes
/// to the localizer. Texts are looked up in the host's language, then in the neutral one (Russian).
/// What is missing is simply not visited. [ui]

#include <cstdint>
#include <optional>
#include <string>

#include "border/custom_pointer.h"
#include "border/interfaces/values.h"
#include "platform/platform.h"

namespace ox::resource {

/// True when a text was found, also when the visitor is empty. A localizer's answer is final.
bool visit_string(std::int32_t id, custom_pointer string_visitor);

/// The text itself; empty when there is none.
std::wstring string(std::int32_t id);

enum class colour_key { none, first_pixel };

/// Delivers the pixels, top row first: blue, green, red, and alpha when a colour key is wanted.
void visit_bitmap(std::int32_t id, colour_key key, custom_pointer bytes_visitor);

/// Delivers an icon as a picture with its mask.
void visit_masked_bitmap(std::int32_t id, custom_pointer masked_bitmap_visitor);

/// A raw text resource in `code_page`, in the host's language, else the neutral one.
std::optional<std::wstring> raw_text(std::int32_t id, unsigned code_page);

/// A square icon, loaded when it is made.
class masked_bitmap final : public masked_bitmap_impl {
public:
    masked_bitmap(platform::resource_module module, std::uint32_t id);
    bool loaded() const { return buffer_.loaded; }

    std::uint32_t width() override { return buffer_.width; }
    std::uint32_t height() override { return buffer_.height; }
    void visit_colour(custom_pointer bytes_visitor) override;
    void visit_mask(custom_pointer bytes_visitor) override;

private:
    void visit_plane(custom_pointer bytes_visitor, std::uint32_t offset, std::int32_t channels) const;

    platform::masked_bitmap_buffer buffer_;
};

}  // namespace ox::resource
