#include "platform/platform.h"
#include "platform/posix/picture_files.h"
#include "platform/posix/resource_set.h"

namespace ox::platform {
namespace {

const resource_set* as_set(resource_module module) { return static_cast<const resource_set*>(module); }

template <class Buffer>
Buffer read_picture(const std::vector<std::uint8_t>& file, Buffer (*read)(byte_view)) {
    try {
        return file.empty() ? Buffer{} : read(byte_view(file));
    } catch (const damaged_picture&) {
        return {};  // as good as none: nothing is drawn
    }
}

}  // namespace

resource_module own_module() { return &own_resources(); }

resource_module basic_module() { return basic_resources(); }

resource_text load_string(resource_module module, std::uint32_t id) {
    return module ? resource_text(as_set(module)->text(id)) : resource_text();
}

std::optional<std::string> load_raw_text(resource_module module, std::uint32_t id) {
    return module ? as_set(module)->raw_text(id) : std::nullopt;
}

bitmap_buffer load_bitmap(resource_module module, std::uint32_t id) {
    return module ? read_picture(as_set(module)->bitmap_file(id), read_bitmap_file) : bitmap_buffer{};
}

masked_bitmap_buffer load_masked_bitmap(resource_module module, std::uint32_t id) {
    return module ? read_picture(as_set(module)->icon_file(id), read_icon_file) : masked_bitmap_buffer{};
}

}  // namespace ox::platform
