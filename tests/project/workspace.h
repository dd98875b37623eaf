#pragma once
/// Sample scenes, and projects that hold them.

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "project/project.h"
#include "testing/scratch_folder.h"

namespace project_test {

using namespace oxhost;
namespace fs = std::filesystem;

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
        EXPECT_EQ(std::tie(found.caption, found.profile, found.proj4),
                  std::tie(expected[i].caption, expected[i].profile, expected[i].proj4));
        EXPECT_EQ(found.line.has_value(), expected[i].line.has_value());
        EXPECT_EQ(of.read_line(found), expected[i].line.value_or(section_line{}));
    }
}

/// A folder with a project of the sample scenes.
class Store : public testing::Test {
protected:
    Store() { make_project(file_); }
    auto open_project(open_mode mode = open_mode::read_write) const { return project::open(file_, mode); }
    void expect_stored(std::span<const new_scene> scenes) const {
        expect_scenes(*open_project(open_mode::read_only), scenes);
    }

    const scratch_folder folder_;
    const std::string file_ = folder_ / "p.gpkg";
};

inline std::string error_of(const auto& action) {
    try {
        action();
        return "no error";
    } catch (const std::exception& e) {
        return e.what();
    }
}

}  // namespace project_test
