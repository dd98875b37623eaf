#include <signal.h>
#include <sys/resource.h>

#include <functional>

#include "project/addition.h"
#include "project/sqlite.h"
#include "testing/case_name.h"
#include "workspace.h"

namespace project_test {
namespace {

void run_sql(const fs::path& file, const std::string& sql) {
    sqlite::connection(file, SQLITE_OPEN_READWRITE).run(sql.c_str());
}

struct bad_file {
    const char* name;
    std::function<void(const fs::path&)> damage;  // of a good project
    const char* complaint;
};

auto sql(const std::string& statement) {
    return [statement](const fs::path& file) { run_sql(file, statement); };
}

TEST_CASES_F(Store, Refuses, WithoutTouching, bad_file,
             {"Missing", [](const fs::path& f) { fs::remove(f); }, "no such file"},
             {"Folder", [](const fs::path& f) { fs::remove(f), fs::create_directory(f); }, "is not a file"},
             {"Text", [](const fs::path& f) { write_bytes(f, std::string(5000, 'x')); },
              "is no SQLite database"},
             {"ZeroBytes", [](const fs::path& f) { write_bytes(f, ""); }, "is no GeoPackage"},
             {"PlainSqlite", sql("PRAGMA application_id=0"), "is no GeoPackage"},
             {"ForeignLayer", sql("UPDATE gpkg_geometry_columns SET table_name='roads'"),
              "is a GeoPackage, but no project"},
             {"ColumnMissing", sql("ALTER TABLE scenes DROP COLUMN proj4"),
              "is a GeoPackage, but no project: its layer 'scenes' lacks proj4"},
             {"Truncated", [](const fs::path& f) { fs::resize_file(f, fs::file_size(f) - 8192); },
              "is damaged"},
             {"PagesOverwritten",
              [](const fs::path& f) {
                  const std::string bytes = bytes_of(f);
                  write_bytes(f, bytes.substr(0, 4096) + std::string(bytes.size() - 4096, '\x5a'));
              },
              "is damaged"},
             {"BlobDamaged", sql("UPDATE scenes SET geom=substr(geom, 1, 60) WHERE fid=2"),
              "scene 1 \"Plan\": geometry is cut short"}) {
    c.damage(file_);
    const auto content = [&] { return fs::is_regular_file(file_) ? bytes_of(file_) : ""; };
    const std::string before = content();
    for (open_mode mode : {open_mode::read_write, open_mode::read_only, open_mode::scratch}) {
        const std::string error = error_of([&] { open_project(mode); });
        EXPECT_TRUE(error.starts_with(file_ + ": " + c.complaint)) << error;
        EXPECT_EQ(error.find('\n'), std::string::npos) << error;
    }
    EXPECT_TRUE(content() == before) << "the file was changed";
}

TEST_F(Store, KeepsScenesInOneCleanFile) {
    EXPECT_EQ(folder_.files(), 1);
    expect_stored(sample_scenes);
    EXPECT_THROW(project::create(file_), project_error);
}

TEST_F(Store, OpensInGisProgramsWithoutWarning) {
    const std::string seen = output_of("ogrinfo -ro -al " + file_);
    for (const char* bad : {"Warning", "ERROR"}) EXPECT_EQ(seen.find(bad), std::string::npos) << seen;
    for (const char* line :
         {"Geometry: Line String", "Feature Count: 4", "Extent: (1.000000, 2.000000) - (500100",
          "LINESTRING (500000.1 6200000.2,500100.3 6200050.4)", "profile (Integer(Boolean))"})
        EXPECT_NE(seen.find(line), std::string::npos) << line << " not in\n" << seen;
}

struct visit {
    const char* name;
    open_mode mode;
    bool changes;
};
TEST_CASES_F(Store, Untouched, EveryByte, visit, {"ReadOnly", open_mode::read_only, false},
             {"WritableUnchanged", open_mode::read_write, false}, {"DryRun", open_mode::scratch, true}) {
    const std::string before = bytes_of(file_);
    {
        auto opened = open_project(c.mode);
        opened->begin_update(*opened->at(0));
        opened->lend_line(*opened->at(0));
        opened->end_update(*opened->at(0));
        if (c.changes) {
            opened->set_proj4(*opened->at(0), "new");
            opened->append(sample_scenes);
            EXPECT_EQ(opened->at(0)->proj4, "new");
        }
    }
    EXPECT_TRUE(bytes_of(file_) == before);
    EXPECT_EQ(folder_.files(), 1);
}

TEST_F(Store, RefusesWhatIsInUse) {
    const auto holder = open_project();
    for (open_mode mode : {open_mode::read_write, open_mode::read_only})
        EXPECT_EQ(error_of([&] { open_project(mode); }), file_ + ": is open in another program");
}

TEST_F(Store, BracketIsSeenInsideAndStoredAtItsEnd) {
    auto opened = open_project();
    scene& first = *opened->at(0);
    opened->begin_update(first);
    opened->begin_update(first);
    opened->set_line(first, polyline{{9, 9}, {8, 8}, {7, 7}});
    opened->set_proj4(first, "new");
    EXPECT_EQ(opened->proj4(first), "new");
    EXPECT_EQ(opened->lend_line(first)->xy.size(), 3U);
    opened->end_update(first);
    EXPECT_EQ(first.proj4, sample_scenes[0].proj4) << "the inner end of nested brackets must not store";
    EXPECT_EQ(opened->read_line(first), *sample_scenes[0].line);
    opened->end_update(first);
    EXPECT_EQ(first.line->vertices, 3U);
    opened->close();
    auto expected = sample_scenes;
    expected[0].proj4 = "new";
    expected[0].line = polyline{{9, 9}, {8, 8}, {7, 7}};
    expect_stored(expected);
}

TEST_F(Store, FullDiskLeavesTheSceneAsItWas) {
    auto opened = open_project();
    scene& first = *opened->at(0);
    const auto old_handler = signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    rlimit tight = usual;
    tight.rlim_cur = fs::file_size(file_);
    setrlimit(RLIMIT_FSIZE, &tight);
    opened->begin_update(first);
    opened->set_line(first, polyline(20000, point{1, 2}));
    opened->set_proj4(first, "new");
    const std::string error = error_of([&] { opened->end_update(first); });
    setrlimit(RLIMIT_FSIZE, &usual);
    signal(SIGXFSZ, old_handler);
    EXPECT_NE(error.find("scene 0 \"Разрез I\": cannot be stored"), std::string::npos) << error;
    expect_scenes(*opened, sample_scenes);
    opened->set_proj4(first, "later");
    opened->close();
    EXPECT_EQ(open_project(open_mode::read_only)->at(0)->proj4, "later");
}

struct records_case {
    const char* name;
    run_records records;
    std::size_t runs_left;  ///< of the two: one before that is kept, and one with these records
};
TEST_CASES_F(Store, Run, KeepsWhatItIsToldTo, records_case, {"Kept", run_records::kept, 2},
             {"UntilEnd", run_records::until_end, 1}, {"None", run_records::none, 1}) {
    auto opened = open_project();
    opened->begin_run({"first", "text"}, run_records::kept);
    opened->set_proj4(*opened->at(0), "1");
    opened->set_proj4(*opened->at(1), "1");
    opened->begin_run({"second", "text"}, c.records);
    opened->set_line(*opened->at(0), polyline{{9, 9}});
    opened->set_proj4(*opened->at(0), "2");
    opened->end_run();
    opened->set_proj4(*opened->at(2), "no run");
    const auto runs = opened->past_runs();
    ASSERT_EQ(runs.size(), c.runs_left);
    EXPECT_EQ(runs.back().scenes, c.records == run_records::kept ? 2U : 1U) << "the scene's records are gone";
}

TEST_F(Store, RollBackLeavesNothingOfARun) {
    auto opened = open_project();
    opened->begin_run({"run", ""}, run_records::kept);
    opened->set_line(*opened->at(0), polyline{{9, 9}});
    opened->set_proj4(*opened->at(2), "new");
    opened->roll_back_run();
    expect_scenes(*opened, sample_scenes);
    EXPECT_TRUE(opened->past_runs().empty());
    opened->close();
    expect_stored(sample_scenes);
}

TEST_F(Store, SpatialIndexOfAnotherProgramIsKeptUp) {
    output_of("ogrinfo " + file_ + " -sql \"SELECT CreateSpatialIndex('scenes', 'geom')\"");
    auto opened = open_project();
    opened->set_line(*opened->at(0), polyline{{70, 80}, {71, 82}});
    opened->close();
    sqlite::connection db(file_, SQLITE_OPEN_READONLY);
    EXPECT_EQ(db.ask("SELECT minx || ' ' || maxy FROM rtree_scenes_geom WHERE id=1"), "70.0 82.0");
}

TEST_F(Store, DiscardRemovesANewProject) {
    project::create(folder_ / "new.gpkg")->discard();
    EXPECT_EQ(folder_.files(), 1);
}

TEST_F(Store, KeepsAttributesHeightsAndMeasures) {
    const std::vector<field> fields{{"depth", field_type::real}, {"Caption", field_type::text}};
    const std::vector<field> others{{"DEPTH", field_type::text}, {"depth", field_type::real}};
    const new_scene well{"W", true, "", section_line({{1, 2}, {3, 4}}, {5, 6}, {7, 8}), {1.5, "говорит"}};
    {
        const auto opened = open_project();
        addition added(*opened);
        EXPECT_EQ(added.take_fields(fields), (std::vector<std::string>{"depth", "Caption_1"}));
        added.add(well);
        EXPECT_EQ(added.take_fields(others), (std::vector<std::string>{"DEPTH_1", "depth"}));
        added.add({"V", true, "", {}, {"deep", std::monostate{}}});
        added.commit();
    }
    {
        const auto opened = open_project();
        addition dropped(*opened);
        dropped.add({"D", true, "", {}});
    }
    const auto opened = open_project(open_mode::read_only);
    ASSERT_EQ(opened->size(), 6U);
    EXPECT_EQ(opened->fields().size(), 3U);
    EXPECT_EQ(opened->read_line(*opened->at(4)), *well.line);
    const field_value none;
    EXPECT_EQ(opened->read_values(*opened->at(4)), (std::vector<field_value>{1.5, "говорит", none}));
    EXPECT_EQ(opened->read_values(*opened->at(5)), (std::vector<field_value>{none, none, "deep"}));
    EXPECT_EQ(opened->read_values(*opened->at(0)), (std::vector<field_value>{none, none, none}));
    const std::string seen = output_of("ogrinfo -ro -al -q " + file_ + " -where \"caption='W'\"");
    EXPECT_NE(seen.find("LINESTRING ZM (1 2 5 7,3 4 6 8)"), std::string::npos) << seen;
    EXPECT_NE(seen.find("Caption_1 (String) = говорит"), std::string::npos) << seen;
}

}  // namespace
}  // namespace project_test
