#pragma once
/// Files of a test: a folder of its own, and what a file holds to the byte.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

/// Made empty; gone afterwards with all that is in it.
class scratch_folder {
public:
    scratch_folder() {
        std::random_device number;
        const std::filesystem::path all = std::filesystem::temp_directory_path();
        do {
            path_ = (all / ("ox-test-" + std::to_string(number()))).string();
        } while (!std::filesystem::create_directory(path_));  // one that is there belongs to another process
    }
    ~scratch_folder() { std::filesystem::remove_all(path_); }
    scratch_folder(const scratch_folder&) = delete;
    scratch_folder& operator=(const scratch_folder&) = delete;

    std::string operator/(const std::string& name) const { return path_ + '/' + name; }
    const std::string& path() const { return path_; }
    /// Number of files and folders in it.
    auto files() const { return std::distance(std::filesystem::directory_iterator(path_), {}); }

private:
    std::string path_;
};

inline std::string bytes_of(const std::string& file) {
    std::ifstream bytes(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(bytes), {}};
}

inline void write_bytes(const std::string& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}
