#include "base/files.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <utility>

namespace oxhost {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse(const fs::path& file, const std::string& reason) {
    throw file_error(file.string() + ": " + reason);
}

[[noreturn]] void fail(const fs::path& file, const std::string& what) {
    refuse(file, what + ": " + std::strerror(errno));
}

/// The temporary neighbour; removed unless it took its place.
class neighbour {
public:
    explicit neighbour(const fs::path& file) : file_(file), name_(file.string() + ".XXXXXX") {
        handle_ = mkstemp(name_.data());
        if (handle_ < 0) fail(file_, "cannot write");
    }
    neighbour(const neighbour&) = delete;
    neighbour& operator=(const neighbour&) = delete;
    ~neighbour() {
        if (handle_ >= 0) close(handle_);
        if (!name_.empty()) unlink(name_.c_str());
    }

    void write_all(std::string_view content) {
        while (!content.empty()) {
            const ssize_t count = write(handle_, content.data(), content.size());
            if (count < 0 && errno == EINTR) continue;
            if (count < 0) fail(file_, "cannot write");
            content.remove_prefix(static_cast<std::size_t>(count));
        }
    }

    void take_place() {
        struct stat old {};
        const mode_t mask = umask(0);
        umask(mask);
        const mode_t mode = stat(file_.c_str(), &old) == 0 ? old.st_mode & 0777 : 0666 & ~mask;
        if (fchmod(handle_, mode) != 0 || fsync(handle_) != 0) fail(file_, "cannot write");
        if (close(std::exchange(handle_, -1)) != 0) fail(file_, "cannot write");
        if (rename(name_.c_str(), file_.c_str()) != 0) fail(file_, "cannot replace");
        name_.clear();
    }

private:
    fs::path file_;
    std::string name_;
    int handle_ = -1;
};

bool is_special(const fs::path& file) {
    std::error_code ignored;
    return fs::exists(file, ignored) && !fs::is_regular_file(file, ignored);
}

}  // namespace

std::optional<std::string> read_file(const fs::path& file, std::size_t limit) {
    errno = 0;
    std::FILE* const opened = std::fopen(file.c_str(), "rb");
    if (!opened) {
        if (errno == ENOENT || errno == ENOTDIR) return {};
        fail(file, "cannot read");
    }
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> closing(opened, std::fclose);
    std::string content(limit + 1, '\0');
    content.resize(std::fread(content.data(), 1, content.size(), opened));
    if (std::ferror(opened)) fail(file, "cannot read");
    if (content.size() > limit) refuse(file, "too large for a file of this kind");
    return content;
}

void replace_file(const fs::path& file, std::string_view content) {
    struct stat old {};
    if (stat(file.c_str(), &old) == 0 && S_ISREG(old.st_mode) && access(file.c_str(), W_OK) != 0)
        fail(file, "cannot write");  // a rename would not ask for the file's own protection
    neighbour fresh(file);
    fresh.write_all(content);
    fresh.take_place();
}

void check_writable(const fs::path& file) {
    const std::string cannot = "cannot be written";
    std::error_code ignored;
    if (fs::is_directory(file, ignored)) refuse(file, cannot + ": is a folder");
    if (!file.has_filename()) refuse(file, cannot + ": has no name");
    if (fs::exists(file, ignored) && access(file.c_str(), W_OK) != 0) fail(file, cannot);
    if (is_special(file)) return;
    const fs::path folder = fs::absolute(file).parent_path();
    if (!fs::is_directory(folder, ignored)) refuse(file, cannot + ": there is no folder " + folder.string());
    if (access(folder.c_str(), W_OK | X_OK) != 0) fail(file, cannot);
}

void write_output(const fs::path& file, std::string_view content) {
    if (!is_special(file)) return replace_file(file, content);
    std::ofstream out(file, std::ios::binary);
    if (!(out << content << std::flush)) fail(file, "cannot be written");
}

temporary_folder::temporary_folder(const fs::path& pattern) {
    std::string name = pattern.string();
    if (!mkdtemp(name.data())) fail(name, "cannot be created");
    path_ = name;
}

temporary_folder::~temporary_folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace oxhost
