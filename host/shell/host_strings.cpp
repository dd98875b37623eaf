#include "shell/host_strings.h"

#include <dlfcn.h>

#include <filesystem>
#include <fstream>
#include <map>

#include "base/language.h"
#include "base/numbers.h"

namespace oxhost::shell {

namespace {

constexpr std::uint32_t english_offset = 50000;

/// The folder stands beside the host's core library.
std::filesystem::path strings_file() {
    Dl_info core{};
    dladdr(reinterpret_cast<void*>(&current_language), &core);
    return std::filesystem::absolute(core.dli_fname).parent_path() / "oxk_basic.res" / "strings.txt";
}

/// Lines `id<TAB>text`; others are comments.
std::map<std::uint32_t, std::string> read_strings() {
    std::map<std::uint32_t, std::string> strings;
    std::ifstream file(strings_file());
    for (std::string line; std::getline(file, line);) {
        const auto tab = line.find('\t');
        if (tab == line.npos) continue;
        if (const auto id = parse_whole_number(std::string_view(line).substr(0, tab)))
            strings[static_cast<std::uint32_t>(*id)] = line.substr(tab + 1);
    }
    return strings;
}

}  // namespace

std::string text_of(std::uint32_t host_string_id) {
    static const auto strings = read_strings();
    const bool english = current_language() == language::english;
    const auto found = strings.find(host_string_id + (english ? english_offset : 0));
    return found == strings.end() ? std::string() : found->second;
}

}  // namespace oxhost::shell
