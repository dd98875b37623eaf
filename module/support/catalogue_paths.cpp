#include <filesystem>

#include "border/host_api/oxk_basic.h"
#include "support/catalogue.h"
#include "support/encodings.h"
#include "support/string_adapter.h"

namespace ox {
namespace {

constexpr std::size_t longest_part = 1023;  // bytes of a directory
constexpr char separator = static_cast<char>(std::filesystem::path::preferred_separator);

}  // namespace

std::string catalogue_dir() {
    const std::string path = wide_to_system(adapted_text(ox_options_get_main_module_path));

    const std::size_t drive = path.size() > 1 && path[1] == ':' ? 2 : 0;
    const std::size_t name = path.find_last_of("/\\");
    const std::size_t end = name == std::string::npos ? drive : name + 1;
    std::string directory = path.substr(drive, end - drive).substr(0, longest_part);
    if (!directory.ends_with('/') && !directory.ends_with('\\')) directory += separator;
    return path.substr(0, drive) + directory;
}

std::string catalogue_path(std::string_view table) { return catalogue_dir().append(table); }

}  // namespace ox
