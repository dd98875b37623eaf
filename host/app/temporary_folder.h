#pragma once

#include <filesystem>

namespace oxhost::app {

/// An empty folder of one's own that vanishes with its content.
class temporary_folder {
public:
    temporary_folder();
    ~temporary_folder();
    temporary_folder(const temporary_folder&) = delete;
    temporary_folder& operator=(const temporary_folder&) = delete;

    std::filesystem::path operator/(const char* name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

}  // namespace oxhost::app
