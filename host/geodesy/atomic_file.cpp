#include "geodesy/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <utility>

namespace oxhost {
namespace {

[[noreturn]] void fail(const std::string& path, std::string_view what, int code) {
    throw std::runtime_error(path + ": " + std::string(what) + ": " + std::strerror(code));
}

/// The temporary neighbour; removed unless it took its place.
class neighbour {
public:
    explicit neighbour(const std::string& path) : path_(path), name_(path + ".XXXXXX") {
        file_ = mkstemp(name_.data());
        if (file_ < 0) fail(path_, "cannot write", errno);
    }
    neighbour(const neighbour&) = delete;
    neighbour& operator=(const neighbour&) = delete;
    ~neighbour() {
        if (file_ >= 0) close(file_);
        if (!name_.empty()) unlink(name_.c_str());
    }

    void write_all(std::string_view content) {
        while (!content.empty()) {
            const ssize_t count = write(file_, content.data(), content.size());
            if (count < 0 && errno == EINTR) continue;
            if (count < 0) fail(path_, "cannot write", errno);
            content.remove_prefix(static_cast<std::size_t>(count));
        }
    }

    void take_place() {
        struct stat old {};
        const mode_t mask = umask(0);
        umask(mask);
        const mode_t mode = stat(path_.c_str(), &old) == 0 ? old.st_mode & 0777 : 0666 & ~mask;
        if (fchmod(file_, mode) != 0 || fsync(file_) != 0) fail(path_, "cannot write", errno);
        const int closed = close(std::exchange(file_, -1));
        if (closed != 0) fail(path_, "cannot write", errno);
        if (rename(name_.c_str(), path_.c_str()) != 0) fail(path_, "cannot replace", errno);
        name_.clear();
    }

private:
    std::string path_;
    std::string name_;
    int file_ = -1;
};

}  // namespace

void replace_file(const std::string& path, std::string_view content) {
    struct stat old {};
    if (stat(path.c_str(), &old) == 0 && S_ISREG(old.st_mode) && access(path.c_str(), W_OK) != 0) {
        fail(path, "cannot write", errno);  // a rename would not ask for the file's own protection
    }
    neighbour fresh(path);
    fresh.write_all(content);
    fresh.take_place();
}

std::optional<std::string> read_file(const std::string& path, std::size_t limit) {
    errno = 0;
    std::FILE* const opened = std::fopen(path.c_str(), "rb");
    if (!opened) {
        if (errno == ENOENT || errno == ENOTDIR) return {};
        fail(path, "cannot read", errno);
    }
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(opened, std::fclose);
    std::string content(limit + 1, '\0');
    content.resize(std::fread(content.data(), 1, content.size(), file.get()));
    if (std::ferror(file.get())) fail(path, "cannot read", errno);
    if (content.size() > limit) throw std::runtime_error(path + ": too large for a file of this kind");
    return content;
}

}  // namespace oxhost
