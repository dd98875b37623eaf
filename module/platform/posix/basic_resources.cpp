#include <dlfcn.h>
#include <link.h>

#include <charconv>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <string>

#include "platform/platform.h"
#include "platform/posix/resource_set.h"

namespace ox::platform {
namespace {

namespace fs = std::filesystem;

constexpr unsigned utf8 = 65001;

std::vector<std::uint8_t> read_whole(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// "\n" in two characters stands for a line break.
std::string unescape(std::string text) {
    for (std::size_t at = 0; (at = text.find("\\n", at)) != std::string::npos; ++at)
        text.replace(at, 2, "\n");
    return text;
}

/// Lines `id<TAB>text`, UTF-8; others are comments.
std::map<std::uint32_t, std::wstring> read_texts(const fs::path& path) {
    std::map<std::uint32_t, std::wstring> texts;
    std::ifstream file(path, std::ios::binary);
    for (std::string line; std::getline(file, line);) {
        if (line.ends_with('\r')) line.pop_back();
        std::uint32_t id = 0;
        const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), id);
        if (error != std::errc() || *end != '\t') continue;
        const std::string text = unescape(end + 1);
        texts[id] = to_wide(text.data(), text.size(), utf8);
    }
    return texts;
}

class folder_set final : public resource_set {
public:
    explicit folder_set(fs::path folder)
        : folder_(std::move(folder)), texts_(read_texts(folder_ / "strings.txt")) {}

    const wchar_t* text(std::uint32_t id) const override {
        const auto found = texts_.find(id);
        return found == texts_.end() ? nullptr : found->second.c_str();
    }
    std::vector<std::uint8_t> bitmap_file(std::uint32_t id) const override {
        return read_whole(file("bitmap_", id, ".bmp"));
    }
    std::vector<std::uint8_t> icon_file(std::uint32_t id) const override {
        return read_whole(file("icon_", id, ".ico"));
    }
    std::optional<std::string> raw_text(std::uint32_t id) const override {
        std::ifstream content(file("text_", id, ".txt"), std::ios::binary);
        if (!content) return std::nullopt;
        return std::string(std::istreambuf_iterator<char>(content), {});
    }

private:
    fs::path file(std::string kind, std::uint32_t id, const char* extension) const {
        return folder_ / kind.append(std::to_string(id)).append(extension);
    }

    fs::path folder_;
    std::map<std::uint32_t, std::wstring> texts_;
};

/// Empty when nothing loaded serves the basic functions.
fs::path basic_module_file() {
    Dl_info info{};
    void* object = nullptr;
    void* function = dlsym(RTLD_DEFAULT, "ox_res_get_lng");
    if (!function || !dladdr1(function, &info, &object, RTLD_DL_LINKMAP)) return {};
    // The executable's own entry is nameless, and dli_fname just what it was called as.
    const std::string file = static_cast<const link_map*>(object)->l_name;
    std::error_code ignored;
    return file.empty() ? fs::read_symlink("/proc/self/exe", ignored) : fs::path(file);
}

}  // namespace

const resource_set* basic_resources() {
    // The basic module may be loaded later than this plug-in; once found it stays.
    static std::unique_ptr<const folder_set> found;
    if (!found) {
        const fs::path file = basic_module_file();
        const fs::path folder = file.parent_path() / "oxk_basic.res";
        std::error_code ignored;
        if (!file.empty() && fs::is_directory(folder, ignored)) found = std::make_unique<folder_set>(folder);
    }
    return found.get();
}

}  // namespace ox::platform
