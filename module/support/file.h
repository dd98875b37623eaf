#pragma once
/// A binary file with random access, reporting its failures to the installed diagnostics sink.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

namespace ox {

/// Paths are narrow, in the system's code page. Reports name a path by its first character only.
class Tox_file {
public:
    static constexpr int success = 0;
    static constexpr int not_opened = 1;

    Tox_file() = default;
    ~Tox_file() { close(); }
    Tox_file(const Tox_file&) = delete;
    Tox_file& operator=(const Tox_file&) = delete;

    /// Opens an existing file; a file that is open is closed first.
    int open(const std::string& path, bool read_only);
    /// Creates a file for reading and writing, or empties it.
    int create(const std::string& path);
    /// What a full disk did not take is reported here at the latest.
    void close();

    bool is_open() const { return stream_ != nullptr; }
    bool read_only() const { return read_only_; }
    const std::wstring& path() const { return path_; }
    /// Bytes; 0 when closed, the largest 32-bit number for larger files.
    std::uint32_t size();

    /// Reads up to `size` bytes at `offset` and answers how many there were; fewer are reported.
    std::size_t read(std::uint64_t offset, void* data, std::size_t size);
    /// Writes at `offset`; false, and reported, when not all went out.
    bool write(std::uint64_t offset, const void* data, std::size_t size);

    void report_write_error() const;

private:
    int open_as(const std::string& path, const char* mode);
    bool seek(std::uint64_t offset);

    std::wstring path_;
    bool read_only_ = false;
    std::FILE* stream_ = nullptr;
    std::uint64_t next_read_ = unknown;  ///< where the stream stands after a read

    static constexpr std::uint64_t unknown = ~std::uint64_t{0};
};

}  // namespace ox
