#pragma once
/// Header and column descriptors of a dBase table, as they stand on disk. Numbers are little-endian.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ox {

/// A number of `size` bytes within a block of bytes.
template <std::size_t offset, std::size_t size, std::size_t block>
constexpr std::uint32_t get_little_endian(const std::array<std::uint8_t, block>& bytes) {
    static_assert(offset + size <= block);
    std::uint32_t value = 0;
    for (std::size_t i = size; i-- > 0;) value = value << 8 | bytes[offset + i];
    return value;
}

template <std::size_t offset, std::size_t size, std::size_t block>
constexpr void put_little_endian(std::array<std::uint8_t, block>& bytes, std::uint32_t value) {
    static_assert(offset + size <= block);
    for (std::size_t i = 0; i < size; ++i, value >>= 8) bytes[offset + i] = static_cast<std::uint8_t>(value);
}

/// Version (byte 0), date YY MM DD (1), record count (4), header length (8), record length (10),
/// language driver (29).
struct dbf_header {
    std::array<std::uint8_t, 32> bytes{};

    std::uint32_t record_count() const { return get_little_endian<4, 4>(bytes); }
    std::uint32_t header_length() const { return get_little_endian<8, 2>(bytes); }
    std::uint32_t record_length() const { return get_little_endian<10, 2>(bytes); }
    void set_record_count(std::uint32_t count) { put_little_endian<4, 4>(bytes, count); }
    void set_header_length(std::uint32_t length) { put_little_endian<8, 2>(bytes, length); }
    void set_record_length(std::uint32_t length) { put_little_endian<10, 2>(bytes, length); }
};

/// Name (byte 0), type (11), displacement in the record (12), length (16), decimal count (17).
/// "B" is a binary double, "I" a binary 32-bit integer, every other type is text.
struct dbf_field {
    static constexpr std::size_t name_size = 11;  ///< the NUL included

    std::array<std::uint8_t, 32> bytes{};

    std::string_view name() const {
        const auto end = std::find(bytes.begin(), bytes.begin() + name_size, std::uint8_t{0});
        return {reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(end - bytes.begin())};
    }
    char type() const { return static_cast<char>(bytes[11]); }
    std::uint32_t displacement() const { return get_little_endian<12, 4>(bytes); }
    std::uint32_t length() const { return bytes[16]; }
    int decimals() const { return static_cast<std::int8_t>(bytes[17]); }

    void set_name(std::string_view name) {
        std::fill_n(bytes.begin(), name_size, std::uint8_t{0});
        std::copy_n(name.begin(), std::min(name.size(), name_size - 1), bytes.begin());
    }
    void set_type(char type) { bytes[11] = static_cast<std::uint8_t>(type); }
    void set_displacement(std::uint32_t displacement) { put_little_endian<12, 4>(bytes, displacement); }
    void set_length(std::uint32_t length) { bytes[16] = static_cast<std::uint8_t>(length); }
    void set_decimals(std::uint32_t decimals) { bytes[17] = static_cast<std::uint8_t>(decimals); }
};

/// A column to create.
struct Tox_dbf_field_def {
    std::string name;  ///< cut to 10 characters
    char type = 'C';
    std::uint32_t length = 20;  ///< 255 at most
    std::uint32_t decimals = 0;
};

}  // namespace ox
