#include "support/file.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "platform/platform.h"
#include "support/encodings.h"
#include "support/env.h"
#include "support/lng_tables.h"

namespace ox {
namespace {

constexpr std::size_t buffer_size = 1 << 16;

// Indices of the file messages among the localized texts.
enum file_message : std::int32_t { cannot_open = 1, reading_failed = 2, writing_failed = 3 };

void report(file_message message, const std::wstring& path) {
    auto* env = get_env();
    if (!env) return;
    std::string text = lng_text(lng_group_files, message);
    text.replace(text.find("%s"), 2, wide_to_system(path.substr(0, 1)));
    env->error(text.c_str());
}

}  // namespace

int Tox_file::open(const std::string& path, bool read_only) {
    read_only_ = read_only;
    return open_as(path, read_only ? "rb" : "rb+");
}

int Tox_file::create(const std::string& path) {
    read_only_ = false;
    return open_as(path, "wb+");
}

int Tox_file::open_as(const std::string& path, const char* mode) {
    close();
    try {
        path_ = system_to_wide(path);
        stream_ = platform::open_file(path_.c_str(), mode);
    } catch (...) {  // no memory for the path: a file that cannot be opened
    }
    if (!stream_) {
        report(cannot_open, path_);
        return not_opened;
    }
    std::setvbuf(stream_, nullptr, _IOFBF, buffer_size);
    return success;
}

void Tox_file::close() {
    next_read_ = unknown;
    if (stream_ && std::fclose(std::exchange(stream_, nullptr)) != 0) report_write_error();
}

std::uint32_t Tox_file::size() {
    if (!stream_) return 0;
    const long position = std::ftell(stream_);
    const bool at_end = std::fseek(stream_, 0, SEEK_END) == 0;
    const long end = at_end ? std::ftell(stream_) : 0;
    std::fseek(stream_, std::max(position, 0L), SEEK_SET);
    const auto largest = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::clamp<std::int64_t>(end, 0, largest));
}

bool Tox_file::seek(std::uint64_t offset) {
    return stream_ && offset <= static_cast<std::uint64_t>(std::numeric_limits<long>::max()) &&
           std::fseek(stream_, static_cast<long>(offset), SEEK_SET) == 0;
}

std::size_t Tox_file::read(std::uint64_t offset, void* data, std::size_t size) {
    if (size == 0) return 0;
    std::size_t count = 0;
    // Records mostly follow each other; the stream then stands there already.
    if (offset == next_read_ || seek(offset)) count = std::fread(data, 1, size, stream_);
    next_read_ = count == size ? offset + count : unknown;
    if (count != size) report(reading_failed, path_);
    return count;
}

bool Tox_file::write(std::uint64_t offset, const void* data, std::size_t size) {
    if (size == 0) return true;
    next_read_ = unknown;
    const bool written = seek(offset) && std::fwrite(data, 1, size, stream_) == size;
    if (!written) report_write_error();
    return written;
}

void Tox_file::report_write_error() const { report(writing_failed, path_); }

}  // namespace ox
