#include "base/files.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <memory>
#include <utility>

#include "base/language.h"
#include "base/numbers.h"

namespace oxhost {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse(const fs::path& file, const std::string& reason) {
    throw file_error(file.string() + ": " + reason);
}

[[noreturn]] void fail(const fs::path& file, const std::string& what) {
    refuse(file, what + ": " + std::strerror(errno));
}

std::string cannot_write() { return words("запись невозможна", "cannot be written"); }

void write_all(int handle, const fs::path& file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t count = write(handle, content.data(), content.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) fail(file, cannot_write());
        content.remove_prefix(static_cast<std::size_t>(count));
    }
}

/// The temporary neighbour; removed unless it took its place.
class neighbour {
public:
    explicit neighbour(const fs::path& file) : file_(file), name_(file.string() + ".XXXXXX") {
        handle_ = mkstemp(name_.data());
        if (handle_ < 0) fail(file_, cannot_write());
    }
    neighbour(const neighbour&) = delete;
    neighbour& operator=(const neighbour&) = delete;
    ~neighbour() {
        if (handle_ >= 0) close(handle_);
        if (!name_.empty()) unlink(name_.c_str());
    }

    void write(std::string_view content) { write_all(handle_, file_, content); }

    void take_place() {
        struct stat old {};
        const mode_t mask = umask(0);
        umask(mask);
        const mode_t mode = stat(file_.c_str(), &old) == 0 ? old.st_mode & 0777 : 0666 & ~mask;
        if (fchmod(handle_, mode) != 0 || fsync(handle_) != 0) fail(file_, cannot_write());
        if (close(std::exchange(handle_, -1)) != 0) fail(file_, cannot_write());
        if (rename(name_.c_str(), file_.c_str()) != 0)
            fail(file_, words("замена невозможна", "cannot be replaced"));
        name_.clear();
    }

private:
    fs::path file_;
    std::string name_;
    int handle_ = -1;
};

/// The descriptor that a name such as /dev/stdout stands for. What is behind it may be an ordinary file, to
/// which others of this process write as well.
std::optional<int> descriptor_of(const fs::path& file) {
    const std::string name = file.lexically_normal().string();
    if (name == "/dev/stdout") return STDOUT_FILENO;
    if (name == "/dev/stderr") return STDERR_FILENO;
    for (const std::string_view folder : {"/dev/fd/", "/proc/self/fd/"})
        if (name.starts_with(folder))
            if (const auto number = parse_whole_number(std::string_view(name).substr(folder.size())))
                return static_cast<int>(*number);
    return {};
}

/// A stream as a descriptor to write to.
class open_stream {
public:
    explicit open_stream(const fs::path& file) : given_(descriptor_of(file)) {
        std::cout.flush();
        handle_ = given_ ? *given_ : open(file.c_str(), O_WRONLY | O_CLOEXEC);
        if (handle_ < 0) fail(file, cannot_write());
    }
    ~open_stream() {
        if (!given_) close(handle_);
    }
    open_stream(const open_stream&) = delete;
    open_stream& operator=(const open_stream&) = delete;

    int handle() const { return handle_; }

private:
    std::optional<int> given_;
    int handle_;
};

}  // namespace

bool is_stream(const fs::path& file) {
    std::error_code ignored;
    return descriptor_of(file) || (fs::exists(file, ignored) && !fs::is_regular_file(file, ignored));
}

fs::path behind_links(const fs::path& file) {
    std::error_code failed;
    if (!fs::is_symlink(file, failed)) return file;
    const fs::path place = fs::canonical(file, failed);
    return failed ? file : place;
}

std::optional<std::string> read_file(const fs::path& file, std::size_t limit) {
    errno = 0;
    std::FILE* const opened = std::fopen(file.c_str(), "rb");
    if (!opened) {
        if (errno == ENOENT || errno == ENOTDIR) return {};
        fail(file, words("чтение невозможно", "cannot be read"));
    }
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> closing(opened, std::fclose);
    std::string content(limit + 1, '\0');
    content.resize(std::fread(content.data(), 1, content.size(), opened));
    if (std::ferror(opened)) fail(file, words("чтение невозможно", "cannot be read"));
    if (content.size() > limit)
        refuse(file, words("слишком велик для файла такого рода", "too large for a file of this kind"));
    return content;
}

void replace_file(const fs::path& named, std::string_view content) {
    const fs::path file = behind_links(named);
    struct stat old {};
    if (stat(file.c_str(), &old) == 0 && S_ISREG(old.st_mode) && access(file.c_str(), W_OK) != 0)
        fail(file, cannot_write());  // a rename would not ask for the file's own protection
    neighbour fresh(file);
    fresh.write(content);
    fresh.take_place();
}

void check_writable(const fs::path& file) {
    const std::string cannot = cannot_write();
    std::error_code ignored;
    if (const auto descriptor = descriptor_of(file)) {
        if (fcntl(*descriptor, F_GETFL) < 0) fail(file, cannot);
        return;
    }
    if (fs::is_directory(file, ignored)) refuse(file, cannot + words(": это папка", ": is a folder"));
    if (!file.has_filename()) refuse(file, cannot + words(": нет имени", ": has no name"));
    if (fs::exists(file, ignored) && access(file.c_str(), W_OK) != 0) fail(file, cannot);
    if (is_stream(file)) return;
    const fs::path folder = fs::absolute(behind_links(file)).parent_path();
    if (!fs::is_directory(folder, ignored))
        refuse(file, cannot + words(": нет папки ", ": there is no folder ") + folder.string());
    if (access(folder.c_str(), W_OK | X_OK) != 0) fail(file, cannot);
}

void write_output(const fs::path& file, std::string_view content) {
    if (!is_stream(file)) return replace_file(file, content);
    const open_stream stream(file);
    write_all(stream.handle(), file, content);
}

void copy_into_stream(const fs::path& file, const fs::path& stream) {
    constexpr std::size_t part = 1 << 20;
    std::ifstream content(file, std::ios::binary);
    const open_stream to(stream);
    std::string buffer(part, '\0');
    while (content.read(buffer.data(), part), content.gcount() > 0)
        write_all(to.handle(), stream,
                  std::string_view(buffer).substr(0, static_cast<std::size_t>(content.gcount())));
}

temporary_folder::temporary_folder(const fs::path& pattern) {
    std::string name = pattern.string();
    if (!mkdtemp(name.data())) fail(name, words("создать невозможно", "cannot be created"));
    path_ = name;
}

temporary_folder::~temporary_folder() {
    std::error_code ignored;
    if (!path_.empty()) fs::remove_all(path_, ignored);
}

}  // namespace oxhost
