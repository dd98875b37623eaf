#pragma once
/// Bytes of foreign origin, read from the front. Every read goes through one check of bounds.

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstring>
#include <span>
#include <stdexcept>

namespace oxhost {

struct cut_short : std::runtime_error {
    cut_short() : runtime_error("the data is cut short") {}
};

template <class T>
T bytes_swapped(T value) {
    auto bytes = std::bit_cast<std::array<std::byte, sizeof(T)>>(value);
    std::ranges::reverse(bytes);
    return std::bit_cast<T>(bytes);
}

/// Between the machine's order of bytes and little-endian, either way.
template <class T>
T little_endian(T value) {
    return std::endian::native == std::endian::little ? value : bytes_swapped(value);
}

class byte_view {
public:
    /// `bytes` outlive the view.
    explicit byte_view(std::span<const std::byte> bytes) : rest_(bytes) {}

    /// The next bytes. Throws cut_short when there are not as many.
    std::span<const std::byte> take(std::size_t count) {
        if (count > rest_.size()) throw cut_short();
        const auto taken = rest_.first(count);
        rest_ = rest_.subspan(count);
        return taken;
    }
    std::span<const std::byte> rest() const { return rest_; }

    template <class T>
    T read(std::endian order) {
        T value;
        std::memcpy(&value, take(sizeof(T)).data(), sizeof(T));
        return order == std::endian::native ? value : bytes_swapped(value);
    }
    unsigned read_byte() { return std::to_integer<unsigned>(take(1)[0]); }

private:
    std::span<const std::byte> rest_;
};

}  // namespace oxhost
