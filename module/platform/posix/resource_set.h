#pragma once
/// What a `resource_module` handle points at here: one module's texts and pictures.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ox::platform {

class resource_set {
public:
    virtual ~resource_set() = default;
    /// Null when there is none; lives as long as the set.
    virtual const wchar_t* text(std::uint32_t id) const = 0;
    /// Contents of a picture file; empty when there is none.
    virtual std::vector<std::uint8_t> bitmap_file(std::uint32_t id) const = 0;
    virtual std::vector<std::uint8_t> icon_file(std::uint32_t id) const = 0;
    /// Bytes of a raw text in whatever encoding; none when there is none.
    virtual std::optional<std::string> raw_text(std::uint32_t id) const = 0;
};

/// Compiled into this plug-in.
const resource_set& own_resources();

/// Of the loaded library or executable that serves the host's basic functions: the folder
/// "oxk_basic.res" beside its file. Null when nothing serves them or the folder is missing.
const resource_set* basic_resources();

}  // namespace ox::platform
