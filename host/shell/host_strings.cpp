#include "shell/host_strings.h"

#include <dlfcn.h>

#include <charconv>
#include <filesystem>
#include <fstream>
#include <map>

#include "session/language.h"

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
        std::uint32_t id = 0;
        const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), id);
        if (error == std::errc() && *end == '\t') strings[id] = end + 1;
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
