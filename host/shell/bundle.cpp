#include "shell/bundle.h"

#include <dlfcn.h>
#include <elf.h>

#include <fstream>
#include <string>
#include <vector>

#include "base/language.h"

namespace oxhost::shell {

namespace {

namespace fs = std::filesystem;

constexpr auto entry_name = "ox_bundle_interface_to_custom_pointer";
constexpr auto unload_guard_name = "scary_vcl_bug_crashes_everything_on_unloading";
constexpr std::size_t visit_factories_slot = 1;

[[noreturn]] void refuse(const fs::path& file, const std::string& reason) {
    throw bundle_error(file.string() + ": " + reason);
}

/// What the loader said, without the file's name in front.
std::string loader_complaint(const fs::path& file) {
    const char* complaint = dlerror();
    const std::string said = complaint ? complaint : words("причина неизвестна", "unknown reason");
    const std::string prefix = file.string() + ": ";
    return said.starts_with(prefix) ? said.substr(prefix.size()) : said;
}

/// The loader maps a file that was cut short as if it were whole, and the process dies of it.
bool is_cut_short(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    const auto size = fs::file_size(file);
    Elf64_Ehdr header{};
    if (!in.read(reinterpret_cast<char*>(&header), sizeof header))
        return false;  // the loader says what it is
    if (std::string(header.e_ident, header.e_ident + SELFMAG) != ELFMAG) return false;
    std::vector<Elf64_Phdr> segments(header.e_phnum);
    in.seekg(static_cast<std::streamoff>(header.e_phoff));
    if (!in.read(reinterpret_cast<char*>(segments.data()),
                 static_cast<std::streamsize>(segments.size() * sizeof(Elf64_Phdr))))
        return true;
    for (const Elf64_Phdr& each : segments)
        if (each.p_type == PT_LOAD && (each.p_offset > size || each.p_filesz > size - each.p_offset))
            return true;
    return false;
}

}  // namespace

void bundle::unmap::operator()(void* library) const { dlclose(library); }

bundle::bundle(const fs::path& file) : file_(file) {
    std::error_code ignored;
    if (!fs::exists(file, ignored)) refuse(file, words("нет такого файла", "no such file"));
    if (!fs::is_regular_file(file, ignored)) refuse(file, words("это не файл", "is not a file"));
    if (is_cut_short(file))
        refuse(file, words("не загружается как модуль: файл обрезан",
                           "cannot be loaded as a bundle: the file is cut short"));
    const fs::path full = fs::absolute(file);  // a bare name would be looked for in the system's folders
    library_.reset(dlopen(full.c_str(), RTLD_NOW | RTLD_LOCAL));
    if (!library_)
        refuse(file, words("не загружается как модуль (", "cannot be loaded as a bundle (") +
                         loader_complaint(full) + ')');
    const auto entry = reinterpret_cast<ox::custom_pointer (*)(void*)>(exported(entry_name));
    exported(unload_guard_name);
    interface_ = entry(this);
    if (!interface_)
        refuse(file, words("это не модуль: его вход ничего не отвечает",
                           "is no bundle: its entry answers nothing"));
}

void* bundle::exported(const char* name) const {
    void* function = dlsym(library_.get(), name);
    if (!function)
        refuse(file_,
               words("это не модуль: он не экспортирует ", "is no bundle: it does not export ") + name);
    return function;
}

void bundle::visit_factories(ox::custom_pointer factory_visitor) const {
    // The one operation that takes its pointer by reference.
    using operation = void (*)(const void*, void*, const ox::custom_pointer&);
    const auto* slots = static_cast<const operation*>(interface_.table);
    slots[visit_factories_slot](interface_.table, interface_.object, factory_visitor);
}

}  // namespace oxhost::shell
