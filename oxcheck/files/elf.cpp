// Numbers and layouts of the System V ABI, 64-bit.

#include "oxcheck/files/exports.h"

namespace oxcheck {

namespace {

constexpr std::uint64_t class_offset = 4;  // of the header: 2 is 64-bit
constexpr std::uint64_t section_table_offset = 0x28;
constexpr std::uint64_t section_size_offset = 0x3A;
constexpr std::uint64_t section_count_offset = 0x3C;
constexpr std::uint32_t dynamic_symbols = 11;

struct section {
    std::uint32_t name, type;
    std::uint64_t flags, address, offset, size;
    std::uint32_t link, info;
    std::uint64_t alignment, entry_size;
};

struct symbol {
    std::uint32_t name;
    std::uint8_t info, other;
    std::uint16_t section;
    std::uint64_t value, size;

    bool defined() const { return section != 0; }
    bool visible() const { return (info >> 4) != 0 && (other & 3) != 2; }  // not local, not hidden
};

}  // namespace

bool is_elf(const byte_view& file) {
    return file.at<std::uint32_t>(0) == 0x464C457F && file.at<std::uint8_t>(class_offset) == 2;
}

std::vector<std::string> elf_exports(const byte_view& file) {
    const auto table = file.at<std::uint64_t>(section_table_offset);
    const auto size = file.at<std::uint16_t>(section_size_offset);
    const auto section_at = [&](std::uint64_t i) { return file.at<section>(table + i * size); };

    std::vector<std::string> names;
    for (std::uint16_t i = 0; i < file.at<std::uint16_t>(section_count_offset); ++i) {
        const section symbols = section_at(i);
        if (symbols.type != dynamic_symbols) continue;
        const section texts = section_at(symbols.link);
        for (std::uint64_t at = 0; at + sizeof(symbol) <= symbols.size; at += sizeof(symbol)) {
            const auto each = file.at<symbol>(symbols.offset + at);
            if (each.defined() && each.visible()) names.push_back(file.text(texts.offset + each.name));
        }
    }
    return names;
}

}  // namespace oxcheck
