#pragma once
/// Files of a test: a folder of its own, sample scenes, and what a file holds to the byte.

#include <gtest/gtest.h>
#include <stdlib.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>

#include "project/project.h"

namespace project_test {

using namespace oxhost;
namespace fs = std::filesystem;

class workspace {
public:
    workspace() {
        std::string name = (fs::temp_directory_path() / "oxhost-test-XXXXXX").string();
        folder_ = mkdtemp(name.data());
    }
    ~workspace() { fs::remove_all(folder_); }
    fs::path operator/(const std::string& name) const { return folder_ / name; }
    std::size_t files() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_), {}));
    }

private:
    fs::path folder_;
};

inline std::string bytes_of(const fs::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return std::move(bytes).str();
}

inline void write_bytes(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

/// What a command prints, both streams.
inline std::string output_of(const std::string& command) {
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen((command + " 2>&1").c_str(), "r"), pclose);
    std::string text;
    std::array<char, 4096> part;
    while (const std::size_t count = fread(part.data(), 1, part.size(), pipe.get()))
        text.append(part.data(), count);
    return text;
}

inline const std::vector<new_scene> sample_scenes{
    {"Разрез I", true, "+proj=utm +zone=40", polyline{{500000.1, 6200000.2}, {500100.3, 6200050.4}}},
    {"Plan", false, "", polyline{{1, 2}, {3, 4}, {5, 6}}},
    {"No line", true, "+proj=longlat", std::nullopt},
    {"Empty line", true, "", polyline{}},
};

inline void make_project(const fs::path& file, std::span<const new_scene> scenes = sample_scenes) {
    auto made = project::create(file);
    made->append(scenes);
    made->close();
}

inline void expect_scenes(project& of, std::span<const new_scene> expected) {
    ASSERT_EQ(of.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const scene& found = *of.at(i);
        SCOPED_TRACE(expected[i].caption);
        EXPECT_EQ(found.caption, expected[i].caption);
        EXPECT_EQ(found.profile, expected[i].profile);
        EXPECT_EQ(found.proj4, expected[i].proj4);
        EXPECT_EQ(found.line.has_value(), expected[i].line.has_value());
        EXPECT_EQ(of.read_line(found), expected[i].line.value_or(polyline{}));
    }
}

inline std::string error_of(const auto& action) {
    try {
        action();
        return "no error";
    } catch (const std::exception& e) {
        return e.what();
    }
}

}  // namespace project_test
