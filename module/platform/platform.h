#pragma once
/// Everything the module asks of an operating system. One implementation per system stands beside
/// this header (windows/, posix/); nothing else of the module knows which one it runs on.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace ox::platform {

// ---- Code pages ----------------------------------------------------------------------------------

/// Windows code page numbers; 0 is the system's ANSI code page (on POSIX: the locale's character set,
/// UTF-8 where the locale is "C" or "POSIX"). What the target cannot hold becomes a replacement
/// character; a code page that the system does not know gives an empty text. [ui]
std::wstring to_wide(const char* text, std::size_t length, unsigned code_page);
std::string to_narrow(const wchar_t* text, std::size_t length, unsigned code_page);

// ---- Files ---------------------------------------------------------------------------------------

/// fopen with a wide path; null when the file cannot be opened. The caller closes it.
std::FILE* open_file(const wchar_t* path, const char* mode);

// ---- Optional host functions ---------------------------------------------------------------------

/// Address of a function that a loaded host module may export, or null.
/// `module` is its name without extension, for example "oxk_entity".
void* find_host_function(const char* module, const char* function);

template <class Function>
Function* host_function(const char* module, const char* function) {
    return reinterpret_cast<Function*>(find_host_function(module, function));
}

// ---- Resources -----------------------------------------------------------------------------------

/// Handle of a loaded module that carries resources; null means that it is not loaded.
using resource_module = const void*;

resource_module own_module();    ///< this plug-in
resource_module basic_module();  ///< the host's "oxk_basic"

/// A text of a string table: where it stands when the table ends it with a zero, else a copy.
class resource_text {
public:
    resource_text() = default;
    explicit resource_text(const wchar_t* in_place) : in_place_(in_place) {}
    explicit resource_text(std::wstring copy) : copy_(std::move(copy)) {}

    /// An empty text counts as none.
    explicit operator bool() const { return *c_str() != L'\0'; }
    const wchar_t* c_str() const { return in_place_ ? in_place_ : copy_.c_str(); }

private:
    const wchar_t* in_place_ = nullptr;
    std::wstring copy_;
};

/// String resource `id`; none when the module has no such resource.
resource_text load_string(resource_module module, std::uint32_t id);

/// Bytes of raw text resource `id` (resource type 260); none when the module has no such resource.
std::optional<std::string> load_raw_text(resource_module module, std::uint32_t id);

struct free_pixels {
    void operator()(std::uint8_t* pixels) const;
};
using pixel_memory = std::unique_ptr<std::uint8_t[], free_pixels>;

/// Pixels of a bitmap: 4 bytes each (blue, green, red, unused), the bottom row first.
struct bitmap_buffer {
    std::int32_t width = 0;
    std::int32_t height = 0;  ///< always positive
    std::uint32_t size = 0;   ///< bytes: 4 * width * height
    pixel_memory pixels;      ///< null when nothing was loaded
    bool loaded = false;
    bool colour_key = false;  ///< alpha was made from the key colour
};

/// Square picture with a mask: 3 bytes of colour per pixel, then, at `mask_offset`, 1 byte of mask per
/// pixel; the bottom row first in both.
struct masked_bitmap_buffer {
    std::uint32_t hot_spot_x = 0;
    std::uint32_t hot_spot_y = 0;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t size = 0;         ///< bytes: 4 * width * width
    std::uint32_t mask_offset = 0;  ///< bytes: 3 * width * width
    pixel_memory pixels;
    bool loaded = false;
};

/// Empty results where the module has no such picture.
bitmap_buffer load_bitmap(resource_module module, std::uint32_t id);
masked_bitmap_buffer load_masked_bitmap(resource_module module, std::uint32_t id);

/// Committed, writable pixel memory; null when there is none to be had.
pixel_memory allocate_pixels(std::size_t bytes);

}  // namespace ox::platform
