/// What a reprojection costs beside the bare work: 10,000 scenes of 200 vertices, Gauss-Krüger to UTM with a
/// datum shift, each contender several times in turn, in one run.
///
///     reproject_bench [OXHOST [FOLDER]]      the program (default: in the folder above), room for 200 MB
///
/// The bare work is a loop of PROJ over the same vertices plus one SQLite transaction that updates the same
/// blobs and texts. ogr2ogr copies the lines to another GeoPackage; it is left out where it is missing.

#include <proj.h>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "project/line_blob.h"
#include "project/project.h"

namespace {

namespace fs = std::filesystem;
using oxhost::polyline;

constexpr std::size_t scene_count = 10000;
constexpr std::size_t vertex_count = 200;
constexpr int rounds = 5;
constexpr auto source =
    "+proj=tmerc +lat_0=0 +lon_0=57 +k=1 +x_0=10500000 +y_0=0 +ellps=krass "
    "+towgs84=23.92,-141.27,-80.9,0,0.35,0.82,-0.12 +units=m +no_defs";
constexpr auto target = "+proj=utm +zone=40 +datum=WGS84 +units=m +no_defs";

/// Lines of about 60 km in the zone, all different.
polyline line_of(std::size_t scene) {
    polyline line;
    const double along = static_cast<double>(scene);
    for (std::size_t i = 0; i < vertex_count; ++i) {
        const double t = static_cast<double>(i);
        line.push_back({10400000 + std::fmod(along * 37, 150000) + 300 * t,
                        5800000 + std::fmod(along * 113, 900000) + 90 * t + 500 * std::sin(t / 9)});
    }
    return line;
}

void make_project(const fs::path& file) {
    std::vector<oxhost::new_scene> scenes;
    for (std::size_t i = 0; i < scene_count; ++i)
        scenes.push_back({"Line " + std::to_string(i), true, source, line_of(i)});
    const auto made = oxhost::project::create(file);
    made->append(scenes);
    made->close();
}

struct cost {
    double seconds = 1e9;
    long peak_kilobytes = 0;

    void keep_best(const cost& other) {
        seconds = std::min(seconds, other.seconds);
        peak_kilobytes = std::max(peak_kilobytes, other.peak_kilobytes);
    }
};

template <class Work>
cost timed(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return {std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(), 0};
}

cost run_program(std::vector<std::string> arguments) {
    long peak_kilobytes = 0;
    const cost spent = timed([&] {
        const pid_t child = fork();
        if (child == 0) {
            std::vector<char*> raw;
            for (std::string& each : arguments) raw.push_back(each.data());
            raw.push_back(nullptr);
            execvp(raw[0], raw.data());
            _exit(127);
        }
        int status = 0;
        rusage used{};
        if (child < 0 || wait4(child, &status, 0, &used) != child || !WIFEXITED(status) ||
            WEXITSTATUS(status) != 0)
            throw std::runtime_error(arguments[0] + " failed");
        peak_kilobytes = used.ru_maxrss;
    });
    return {spent.seconds, peak_kilobytes};
}

/// The lines come out transformed.
cost plain_proj(std::vector<polyline>& lines) {
    return timed([&] {
        PJ_CONTEXT* context = proj_context_create();
        PJ* pair = proj_create_crs_to_crs(context, source, target, nullptr);
        PJ* way = proj_normalize_for_visualization(context, pair);
        for (polyline& line : lines)
            for (auto& [x, y] : line) {
                const PJ_COORD moved = proj_trans(way, PJ_FWD, proj_coord(x, y, 0, 0));
                x = moved.xy.x;
                y = moved.xy.y;
            }
        proj_destroy(way);
        proj_destroy(pair);
        proj_context_destroy(context);
    });
}

void check(int code, sqlite3* db) {
    if (code != SQLITE_OK && code != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(db));
}

cost plain_sqlite(const fs::path& file, const std::vector<std::vector<std::byte>>& blobs) {
    return timed([&] {
        sqlite3* db = nullptr;
        check(sqlite3_open(file.c_str(), &db), db);
        check(sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr), db);
        sqlite3_stmt* update = nullptr;
        check(
            sqlite3_prepare_v2(db, "UPDATE scenes SET geom=?1, proj4=?2 WHERE fid=?3", -1, &update, nullptr),
            db);
        for (std::size_t i = 0; i < blobs.size(); ++i) {
            sqlite3_bind_blob(update, 1, blobs[i].data(), static_cast<int>(blobs[i].size()), SQLITE_STATIC);
            sqlite3_bind_text(update, 2, target, -1, SQLITE_STATIC);
            sqlite3_bind_int64(update, 3, static_cast<sqlite3_int64>(i + 1));
            check(sqlite3_step(update), db);
            sqlite3_reset(update);
        }
        sqlite3_finalize(update);
        check(sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr), db);
        sqlite3_close(db);
    });
}

void print(const char* name, const cost& of) {
    std::printf("%-28s %8.3f s", name, of.seconds);
    if (of.peak_kilobytes) std::printf("   peak %6.1f MB", static_cast<double>(of.peak_kilobytes) / 1024);
    std::printf("\n");
}

void measure(const std::string& oxhost, const fs::path& folder) {
    const fs::path original = folder / "original.gpkg";
    const fs::path copy = folder / "copy.gpkg";
    const fs::path converted = folder / "converted.gpkg";
    const auto fresh = [&] { fs::copy_file(original, copy, fs::copy_options::overwrite_existing); };
    make_project(original);
    std::vector<std::vector<std::byte>> blobs(scene_count);

    const bool has_ogr2ogr = std::system("command -v ogr2ogr >/dev/null") == 0;
    cost proj, sqlite, reproject, without_undo, with_report, ogr2ogr;
    for (int round = 0; round < rounds; ++round) {
        std::vector<polyline> lines;
        for (std::size_t i = 0; i < scene_count; ++i) lines.push_back(line_of(i));
        proj.keep_best(plain_proj(lines));
        for (std::size_t i = 0; i < scene_count; ++i) oxhost::encode_line(lines[i], blobs[i]);
        fresh();
        sqlite.keep_best(plain_sqlite(copy, blobs));
        const auto run_with = [&](cost& best, std::vector<std::string> options) {
            fresh();
            std::vector<std::string> command{oxhost, "reproject", copy, "--to", target, "--all", "--quiet"};
            command.insert(command.end(), options.begin(), options.end());
            best.keep_best(run_program(std::move(command)));
        };
        run_with(reproject, {});
        run_with(without_undo, {"--no-undo"});
        run_with(with_report, {"--report", folder / "report.json", "--overwrite"});
        fs::remove(converted);
        if (has_ogr2ogr)
            ogr2ogr.keep_best(run_program({"ogr2ogr", "-f", "GPKG", "-s_srs", source, "-t_srs", target,
                                           converted.string(), original.string()}));
    }
    std::printf("%zu scenes of %zu vertices, best of %d\n", scene_count, vertex_count, rounds);
    print("plain PROJ loop", proj);
    print("plain SQLite update", sqlite);
    print("oxhost reproject", reproject);
    print("the same, --no-undo", without_undo);
    print("the same, --report", with_report);
    if (has_ogr2ogr) print("ogr2ogr GPKG to GPKG", ogr2ogr);
    std::printf("oxhost / (PROJ + SQLite) = %.2f\n", reproject.seconds / (proj.seconds + sqlite.seconds));
    std::printf("with undo / without      = %.2f\n", reproject.seconds / without_undo.seconds);
    std::printf("with report / without    = %.2f\n", with_report.seconds / reproject.seconds);
    if (has_ogr2ogr) std::printf("oxhost / ogr2ogr         = %.2f\n", reproject.seconds / ogr2ogr.seconds);
}

}  // namespace

int main(int argc, char** argv) {
    const fs::path own = fs::read_symlink("/proc/self/exe").parent_path();
    const std::string oxhost = argc > 1 ? argv[1] : (own.parent_path() / "oxhost").string();
    std::string folder =
        ((argc > 2 ? fs::path(argv[2]) : fs::temp_directory_path()) / "oxbench-XXXXXX").string();
    if (!mkdtemp(folder.data())) return 1;
    int result = 0;
    try {
        measure(oxhost, folder);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "reproject_bench: %s\n", e.what());
        result = 1;
    }
    fs::remove_all(folder);
    return result;
}
