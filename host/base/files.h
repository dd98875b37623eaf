#pragma once
/// Small files, read and written as a whole, and folders for a while. Paths are UTF-8.

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace oxhost {

/// One line that begins with the file.
struct file_error : std::runtime_error {
    using runtime_error::runtime_error;
};

/// Nothing when there is no such file. Throws file_error when it cannot be read or is larger than `limit`
/// bytes.
std::optional<std::string> read_file(const std::filesystem::path& file, std::size_t limit = 1 << 20);

/// Writes to a temporary neighbour, flushes it to disk and renames it, so that a killed process leaves the
/// old content or the new. A linked file stays linked. Throws file_error; the old file is then as it was.
void replace_file(const std::filesystem::path& file, std::string_view content);

/// What is no ordinary file, such as a pipe, or stands for an open descriptor, such as /dev/stdout: it is
/// written into, never replaced.
bool is_stream(const std::filesystem::path& file);

/// The file that symbolic links lead to; the name as it is when they lead nowhere.
std::filesystem::path behind_links(const std::filesystem::path& file);

/// Throws file_error when an output could not be made or replaced: asked before work whose result it takes.
void check_writable(const std::filesystem::path& file);

/// Replaces the file, or writes into a stream. Throws file_error.
void write_output(const std::filesystem::path& file, std::string_view content);

/// Writes the file's content into a stream. Throws file_error.
void copy_into_stream(const std::filesystem::path& file, const std::filesystem::path& stream);

/// An empty folder of one's own that vanishes with its content.
class temporary_folder {
public:
    /// `pattern` ends in XXXXXX, which become letters of its own. Throws file_error.
    explicit temporary_folder(const std::filesystem::path& pattern = std::filesystem::temp_directory_path() /
                                                                     "oxhost-XXXXXX");
    ~temporary_folder();
    temporary_folder(const temporary_folder&) = delete;
    temporary_folder& operator=(const temporary_folder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    /// Leaves the folder to the user; answers where it is.
    std::filesystem::path keep() { return std::exchange(path_, {}); }
    std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

}  // namespace oxhost
