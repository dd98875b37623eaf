#pragma once
/// Names that a shared library exports, read from its file. 64-bit ELF and PE, little-endian.

#include <filesystem>
#include <string>
#include <vector>

#include "oxcheck/files/byte_view.h"

namespace oxcheck {

/// In the file's order. Throws `damaged_file` when it is no shared library or not a whole one.
std::vector<std::string> exports_of(const std::filesystem::path& file);

bool is_elf(const byte_view& file);
std::vector<std::string> elf_exports(const byte_view& file);
bool is_pe(const byte_view& file);
std::vector<std::string> pe_exports(const byte_view& file);

}  // namespace oxcheck
