#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <thread>

#include "workspace.h"

namespace project_test {
namespace {

constexpr std::size_t scene_count = 40;

/// Line and text of one version of a scene name the same number.
section_line line_of(int version) { return polyline(300, point{double(version), -double(version)}); }

/// Says on `started` that the first scene is changed.
[[noreturn]] void update_until_killed(const fs::path& file, int first, int started) {
    auto opened = project::open(file, open_mode::read_write);
    for (int version = first;; ++version)
        for (std::size_t i = 0; i < scene_count; ++i) {
            if (version == first && i == 1 && write(started, "", 1) != 1) _exit(1);
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
    const struct {
        bool opening;  ///< killed while it opens the project, else after the first change
        int milliseconds;
    } moments[] = {{false, 0}, {false, 7}, {false, 60}, {false, 300}, {true, 3}, {true, 12}, {true, 40}};
    for (const auto& [opening, milliseconds] : moments) {
        int started[2];
        ASSERT_EQ(pipe(started), 0);
        const pid_t child = fork();
        // Once more with the newest version, which the last child may not have brought to every scene.
        if (child == 0) update_until_killed(file, std::max(newest, 1), started[1]);
        char changed = 0;
        if (!opening && read(started[0], &changed, 1) != 1) ADD_FAILURE() << "no first change";
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        for (const int end : started) close(end);

        const auto content = [&] { return bytes_of(file) + bytes_of(file + "-wal"); };
        const std::string left = content();
        std::optional<int> seen_by_reader;
        try {
            expect_whole_scenes(*project::open(file, open_mode::read_only), seen_by_reader.emplace());
        } catch (const project_error& refusal) {  // in the middle of opening, which only a writer can undo
            EXPECT_TRUE(opening) << refusal.what();
            seen_by_reader.reset();
        }
        EXPECT_TRUE(content() == left) << "a reader changed the file";
        expect_whole_scenes(*project::open(file, open_mode::read_write), newest);
        EXPECT_EQ(seen_by_reader.value_or(newest), newest);
        // What was cut off while it opened may leave a cold journal, which nobody reads.
        EXPECT_LE(folder.files(), opening ? 2 : 1) << "a clean close leaves the project alone";
    }
    EXPECT_GT(newest, 0);
}

}  // namespace
}  // namespace project_test
