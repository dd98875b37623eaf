#include <gtest/gtest.h>

#include <cmath>

#include "oxhost_run.h"

namespace {

using namespace oxhost_test;
using oxhost::point;
using oxhost::polyline;

constexpr auto nad27 = "+proj=longlat +datum=NAD27 +no_defs";  // several operations, of which PROJ chooses

polyline winding(point start, point step, std::size_t vertices) {
    polyline line;
    for (std::size_t i = 0; i < vertices; ++i) {
        const auto t = static_cast<double>(i);
        line.push_back({start.x + step.x * t, start.y + step.y * std::sin(t / 7)});
    }
    return line;
}

/// Pairs of projections that come and go, lines of every length, and some that fail at a vertex.
std::vector<source_line> mixed_lines() {
    std::vector<source_line> lines;
    for (const std::size_t vertices : {1, 2, 15, 16, 17, 200, 4096, 4097, 20'000, 120'000, 300, 3})
        lines.push_back({"long", gauss_kruger_10, winding({10400000, 6200000}, {3, 900}, vertices)});
    for (int i = 0; i < 60; ++i) {
        const bool american = i % 20 == 19;
        const point start = american ? point{-100, 40} : point{50, 60};
        lines.push_back({"degrees", american ? nad27 : wgs84, winding(start, {0.01, 0.2}, 90)});
        if (i % 13 == 5) lines.back().line[70].y = 90.5;
        if (i % 11 == 3)
            lines.push_back({"metres", gauss_kruger_10, winding({10500000, 6100000}, {90, 5000}, 150)});
    }
    return lines;
}

struct run_result {
    std::vector<polyline> lines;
    std::vector<std::string> texts;
    nlohmann::json scenes;
    std::string error;
};

run_result reprojected_with(const std::string& threads) {
    const sandbox box;
    box.make_project(mixed_lines());
    const auto run = box.oxhost({"reproject", "p.gpkg", "--to", utm40, "--all", "--on-error", "skip",
                                 "--report", "r.json", "--threads", threads});
    EXPECT_EQ(run.code, 1) << run.error;
    return {box.stored_lines(), box.listed("proj4"), box.json("r.json").at("scenes"), run.error};
}

TEST(Threads, MakeNoDifferenceInAnyBit) {
    const run_result alone = reprojected_with("1");
    const auto done = std::ranges::count(alone.texts, utm40);
    EXPECT_GT(done, 60);
    EXPECT_LT(done, std::ssize(alone.texts) - 4);
    for (const char* threads : {"2", "5", "64"}) {
        const run_result together = reprojected_with(threads);
        EXPECT_TRUE(together.lines == alone.lines) << threads;
        EXPECT_EQ(together.texts, alone.texts) << threads;
        EXPECT_TRUE(together.scenes == alone.scenes) << threads;
        EXPECT_EQ(together.error, alone.error) << threads;
    }
}

}  // namespace
