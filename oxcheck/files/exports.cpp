#include "oxcheck/files/exports.h"

#include <fstream>
#include <memory>

namespace oxcheck {

std::vector<std::string> exports_of(const std::filesystem::path& file) {
    const auto size = static_cast<std::size_t>(std::filesystem::file_size(file));
    const auto content = std::make_unique_for_overwrite<char[]>(size);
    if (!std::ifstream(file, std::ios::binary).read(content.get(), static_cast<std::streamsize>(size)))
        throw damaged_file("it cannot be read to its end");
    const byte_view bytes({reinterpret_cast<const std::uint8_t*>(content.get()), size});
    constexpr std::size_t smallest = 64;  // both headers are longer
    if (size >= smallest && is_elf(bytes)) return elf_exports(bytes);
    if (size >= smallest && is_pe(bytes)) return pe_exports(bytes);
    throw damaged_file("neither a 64-bit ELF nor a 64-bit PE library");
}

}  // namespace oxcheck
