#pragma once
/// A file's bytes, read through one bounds check.

#include <cstdint>
#include <cstring>
#include <span>
#include <stdexcept>
#include <string>

namespace oxcheck {

struct damaged_file : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class byte_view {
public:
    explicit byte_view(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    /// A little-endian number or a packed structure of them.
    template <class T>
    T at(std::uint64_t offset) const {
        T value;
        std::memcpy(&value, part(offset, sizeof value).data(), sizeof value);
        return value;
    }
    /// A text that a zero byte ends.
    std::string text(std::uint64_t offset) const {
        const auto rest = part(offset, 1).data();
        const auto* end = std::memchr(rest, 0, bytes_.size() - static_cast<std::size_t>(offset));
        if (!end) throw damaged_file("the text at byte " + std::to_string(offset) + " has no end");
        return {reinterpret_cast<const char*>(rest), static_cast<const char*>(end)};
    }

private:
    std::span<const std::uint8_t> part(std::uint64_t offset, std::uint64_t size) const {
        if (offset > bytes_.size() || size > bytes_.size() - offset)
            throw damaged_file("byte " + std::to_string(offset) + " lies behind the end of the file");
        return bytes_.subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(size));
    }

    std::span<const std::uint8_t> bytes_;
};

}  // namespace oxcheck
