#include "app/output_file.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>

#include "app/command.h"
#include "geodesy/atomic_file.h"

namespace oxhost::app {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse(const fs::path& file, const std::string& reason) {
    throw failure(exit_code::nothing_done, file.string() + ": cannot be written: " + reason);
}

bool is_special(const fs::path& file) {
    std::error_code ignored;
    return fs::exists(file, ignored) && !fs::is_regular_file(file, ignored);
}

}  // namespace

void check_writable(const fs::path& file) {
    std::error_code ignored;
    if (fs::is_directory(file, ignored)) refuse(file, "is a folder");
    if (!file.has_filename()) refuse(file, "has no name");
    if (fs::exists(file, ignored) && access(file.c_str(), W_OK) != 0) refuse(file, std::strerror(errno));
    if (is_special(file)) return;
    const fs::path folder = fs::absolute(file).parent_path();
    if (!fs::is_directory(folder, ignored)) refuse(file, "there is no folder " + folder.string());
    if (access(folder.c_str(), W_OK | X_OK) != 0) refuse(file, std::strerror(errno));
}

void write_output(const fs::path& file, std::string_view content) {
    if (!is_special(file)) {
        try {
            return replace_file(file.string(), content);
        } catch (const std::runtime_error& e) {
            throw failure(exit_code::nothing_done, e.what());
        }
    }
    std::ofstream out(file, std::ios::binary);
    if (!(out << content << std::flush)) refuse(file, std::strerror(errno));
}

}  // namespace oxhost::app
