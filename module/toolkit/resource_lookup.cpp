#include "toolkit/resource_lookup.h"

#include <algorithm>

#include "border/call.h"
#include "border/host_api/oxk_basic.h"
#include "border/interfaces/services.h"
#include "framework/local_factory.h"
#include "framework/value_visitors.h"

namespace ox::resource {

namespace {

/// Where an id is looked up: a module and the number there.
struct place {
    platform::resource_module module;
    std::uint32_t number;
};

place place_of(std::int32_t id) {
    return id > 0 ? place{platform::own_module(), static_cast<std::uint32_t>(id)}
                  : place{platform::basic_module(), 0u - static_cast<std::uint32_t>(id)};
}

custom_pointer localizer_of(std::int32_t id) { return id > 0 ? current_localizer() : custom_pointer{}; }

/// `find` is tried with the number in the host's language, then with the neutral number.
template <class Find>
auto in_host_language(std::uint32_t number, Find find) {
    const auto language = static_cast<std::uint32_t>(ox_res_get_lng());
    auto found = find(number + language);
    return found || language == 0 ? found : find(number);
}

/// The colour of the first pixel in memory becomes transparent black, every other pixel opaque.
void apply_colour_key(platform::bitmap_buffer& bitmap) {
    std::uint8_t* const first = bitmap.pixels.get();
    const std::uint8_t key[3] = {first[0], first[1], first[2]};
    for (std::uint8_t* pixel = first; pixel != first + bitmap.size; pixel += 4) {
        const bool is_key = std::equal(key, key + 3, pixel);
        if (is_key) std::fill_n(pixel, 3, std::uint8_t{0});
        pixel[3] = is_key ? 0 : 255;
    }
    bitmap.colour_key = true;
}

}  // namespace

bool visit_string(std::int32_t id, custom_pointer string_visitor) {
    if (const custom_pointer localizer = localizer_of(id))
        return call<&localizer_impl::visit_string>(localizer, static_cast<std::uint32_t>(id), string_visitor);
    const auto [module, number] = place_of(id);
    if (!module) return false;
    const platform::resource_text text = in_host_language(
        number, [module = module](std::uint32_t n) { return platform::load_string(module, n); });
    if (!text) return false;
    call<&string_visitor_impl::visit>(string_visitor, text.c_str());
    return true;
}

std::wstring string(std::int32_t id) {
    return read_text([id](custom_pointer visitor) { visit_string(id, visitor); });
}

void visit_bitmap(std::int32_t id, colour_key key, custom_pointer bytes_visitor) {
    if (const custom_pointer localizer = localizer_of(id)) {
        detail::key_visitor keyed(bytes_visitor);
        call<&localizer_impl::visit_bitmap>(localizer, static_cast<std::uint32_t>(id),
                                            key == colour_key::none
                                                ? bytes_visitor
                                                : make_pointer<thrice_interleaved_bytes_visitor_impl>(keyed));
        return;
    }
    const auto [module, number] = place_of(id);
    if (!module) return;
    platform::bitmap_buffer bitmap = platform::load_bitmap(module, number);
    if (!bitmap.pixels || bitmap.size == 0) return;
    if (key != colour_key::none) apply_colour_key(bitmap);
    const std::int32_t stride = 4 * bitmap.width;
    const std::uint8_t* last_row = bitmap.pixels.get() + std::ptrdiff_t{stride} * (bitmap.height - 1);
    call<&thrice_interleaved_bytes_visitor_impl::visit>(bytes_visitor, bitmap.height, -stride, bitmap.width,
                                                        4, bitmap.colour_key ? 4 : 3, 1, last_row);
}

void visit_masked_bitmap(std::int32_t id, custom_pointer masked_bitmap_visitor) {
    if (const custom_pointer localizer = localizer_of(id)) {
        call<&localizer_impl::visit_masked_bitmap>(localizer, static_cast<std::uint32_t>(id),
                                                   masked_bitmap_visitor);
        return;
    }
    const auto [module, number] = place_of(id);
    if (!module) return;
    masked_bitmap bitmap(module, number);
    if (bitmap.loaded())
        call<&masked_bitmap_visitor_impl::visit>(masked_bitmap_visitor,
                                                 make_pointer<masked_bitmap_impl>(bitmap));
}

std::optional<std::wstring> raw_text(std::int32_t id, unsigned code_page) {
    const auto [module, number] = place_of(id);
    if (!module) return std::nullopt;
    const auto bytes = in_host_language(
        number, [module = module](std::uint32_t n) { return platform::load_raw_text(module, n); });
    if (!bytes) return std::nullopt;
    return platform::to_wide(bytes->data(), bytes->size(), code_page);
}

masked_bitmap::masked_bitmap(platform::resource_module module, std::uint32_t id)
    : buffer_(platform::load_masked_bitmap(module, id)) {}

void masked_bitmap::visit_colour(custom_pointer bytes_visitor) { visit_plane(bytes_visitor, 0, 3); }

void masked_bitmap::visit_mask(custom_pointer bytes_visitor) {
    visit_plane(bytes_visitor, buffer_.mask_offset, 1);
}

void masked_bitmap::visit_plane(custom_pointer bytes_visitor, std::uint32_t offset,
                                std::int32_t channels) const {
    if (!buffer_.loaded) return;
    const auto width = static_cast<std::int32_t>(buffer_.width);
    const auto height = static_cast<std::int32_t>(buffer_.height);
    const std::int32_t stride = channels * width;
    const std::uint8_t* last_row = buffer_.pixels.get() + offset + std::ptrdiff_t{stride} * (height - 1);
    call<&thrice_interleaved_bytes_visitor_impl::visit>(bytes_visitor, height, -stride, width, channels,
                                                        channels, 1, last_row);
}

}  // namespace ox::resource
