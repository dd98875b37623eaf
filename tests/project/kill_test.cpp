#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "workspace.h"

namespace project_test {
namespace {

constexpr std::size_t scene_count = 40;

/// Line and text of one version of a scene name the same number.
polyline line_of(int version) { return polyline(300, point{double(version), -double(version)}); }

[[noreturn]] void update_until_killed(const fs::path& file) {
    auto opened = project::open(file, open_mode::read_write);
    for (int version = 1;; ++version)
        for (std::size_t i = 0; i < scene_count; ++i) {
            opened->begin_update(*opened->at(i));
            opened->set_line(*opened->at(i), line_of(version));
            opened->set_proj4(*opened->at(i), std::to_string(version));
            opened->end_update(*opened->at(i));
        }
}

/// Brackets run in scene order, so versions go down by one step at most, and each scene is of one version.
void expect_whole_scenes(project& of, int& newest) {
    newest = std::stoi(of.at(0)->proj4);
    for (const scene& each : of.scenes()) {
        const int version = std::stoi(each.proj4);
        EXPECT_TRUE(version == newest || version == newest - 1) << "scene " << each.index;
        EXPECT_EQ(of.read_line(each), line_of(version)) << "scene " << each.index << ": text " << each.proj4;
    }
}

TEST(Kill, EverySceneIsWholeAndRecovered) {
    const scratch_folder folder;
    const std::string file = folder / "p.gpkg";
    make_project(file, std::vector<new_scene>(scene_count, {"s", true, "0", line_of(0)}));
    int newest = 0;
    for (int milliseconds : {40, 90, 150, 260, 420}) {
        const pid_t child = fork();
        if (child == 0) update_until_killed(file);
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);

        const auto content = [&] { return bytes_of(file) + bytes_of(file + "-wal"); };
        const std::string left = content();
        int seen_by_reader = 0;
        expect_whole_scenes(*project::open(file, open_mode::read_only), seen_by_reader);
        EXPECT_TRUE(content() == left) << "a reader changed the file";
        expect_whole_scenes(*project::open(file, open_mode::read_write), newest);
        EXPECT_EQ(seen_by_reader, newest);
        EXPECT_EQ(folder.files(), 1) << "a clean close leaves the project alone";
    }
    EXPECT_GT(newest, 0) << "no child got as far as an update";
}

}  // namespace
}  // namespace project_test
