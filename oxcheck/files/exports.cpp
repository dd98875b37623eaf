#include "oxcheck/files/exports.h"

#include <fstream>
#include <iterator>

namespace oxcheck {

std::vector<std::string> exports_of(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    const std::vector<char> content{std::istreambuf_iterator<char>(in), {}};
    const byte_view bytes({reinterpret_cast<const std::uint8_t*>(content.data()), content.size()});
    if (content.size() >= 64 && is_elf(bytes)) return elf_exports(bytes);
    if (content.size() >= 64 && is_pe(bytes)) return pe_exports(bytes);
    throw damaged_file("neither a 64-bit ELF nor a 64-bit PE library");
}

}  // namespace oxcheck
