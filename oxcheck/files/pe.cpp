// Numbers and layouts of the Portable Executable format, 64-bit.

#include "oxcheck/files/exports.h"

namespace oxcheck {

namespace {

constexpr std::uint64_t new_header_offset = 0x3C;
constexpr std::uint64_t section_count_offset = 6;  // these from the new header on
constexpr std::uint64_t optional_size_offset = 0x14;
constexpr std::uint64_t optional_header = 0x18;
constexpr std::uint16_t optional_magic = 0x20B;        // PE32+
constexpr std::uint64_t directory_count_offset = 108;  // these from the optional header on
constexpr std::uint64_t export_directory_offset = 112;

struct section {
    char name[8];
    std::uint32_t virtual_size, address, raw_size, raw_offset, unused[4];
};

struct export_directory {
    std::uint32_t flags, time, version, name, ordinal_base, functions, names, function_table, name_table,
        ordinal_table;
};

class image {
public:
    explicit image(const byte_view& file) : file_(file), header_(file.at<std::uint32_t>(new_header_offset)) {}

    std::uint64_t optional() const { return header_ + optional_header; }
    /// Place in the file of what the loader puts at an address.
    std::uint64_t offset_of(std::uint32_t address) const {
        const auto first = optional() + file_.at<std::uint16_t>(header_ + optional_size_offset);
        const auto count = file_.at<std::uint16_t>(header_ + section_count_offset);
        for (std::uint64_t i = 0; i < count; ++i) {
            const auto each = file_.at<section>(first + i * sizeof(section));
            if (address >= each.address && address - each.address < each.raw_size)
                return std::uint64_t{each.raw_offset} + (address - each.address);
        }
        throw damaged_file("address " + std::to_string(address) + " lies in no section");
    }

private:
    const byte_view& file_;
    std::uint64_t header_;
};

}  // namespace

bool is_pe(const byte_view& file) {
    if (file.at<std::uint16_t>(0) != 0x5A4D) return false;
    const auto header = file.at<std::uint32_t>(new_header_offset);
    return file.at<std::uint32_t>(header) == 0x4550 &&
           file.at<std::uint16_t>(header + optional_header) == optional_magic;
}

std::vector<std::string> pe_exports(const byte_view& file) {
    const image pe(file);
    std::vector<std::string> names;
    if (file.at<std::uint32_t>(pe.optional() + directory_count_offset) == 0) return names;
    const auto address = file.at<std::uint32_t>(pe.optional() + export_directory_offset);
    if (address == 0) return names;
    const auto directory = file.at<export_directory>(pe.offset_of(address));
    if (directory.names == 0) return names;
    const std::uint64_t table = pe.offset_of(directory.name_table);
    for (std::uint64_t i = 0; i < directory.names; ++i)
        names.push_back(file.text(pe.offset_of(file.at<std::uint32_t>(table + 4 * i))));
    return names;
}

}  // namespace oxcheck
