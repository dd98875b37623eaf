#include "exchange/exchange.h"

#include "imported.h"

namespace project_test {
namespace {

void export_all(const fs::path& out, std::span<const new_scene> scenes, const std::string& crs = "",
                const fs::path& project_file = {}) {
    auto at = scenes.begin();
    load_exchange().export_lines(out, project_file, crs, [&]() -> std::optional<new_scene> {
        return at == scenes.end() ? std::nullopt : std::optional(*at++);
    });
}

class RoundTrip : public testing::TestWithParam<std::string> {};

TEST_P(RoundTrip, GivesTheSameProject) {
    const scratch_folder folder;
    const fs::path out = folder / ("out." + GetParam());
    std::vector<new_scene> scenes{sample_scenes.begin(), sample_scenes.begin() + 3};
    scenes[1].line = polyline{{0.1 + 0.2, 1.0 / 3}, {1234567.1234567891, 1e-7 / 3}, {-5, 6e15 / 7}};
    export_all(out, scenes);
    make_project(folder / "again.gpkg", imported(out).scenes);
    expect_scenes(*project::open(folder / "again.gpkg", open_mode::read_only), scenes);
    export_all(out, std::span(scenes).first(1));
    EXPECT_EQ(imported(out).scenes.size(), 1U) << "an existing file is replaced";
}

INSTANTIATE_TEST_SUITE_P(Formats, RoundTrip, testing::Values("geojson", "gpkg", "shp"),
                         [](const auto& format) { return format.param; });

TEST(Export, GivesTheLayerItsCrs) {
    const scratch_folder folder;
    for (const char* name : {"o.gpkg", "o.shp"}) {
        export_all(folder / name, std::span(sample_scenes).first(1), "+proj=utm +zone=40 +datum=WGS84");
        const std::string seen = output_of("ogrinfo -ro -al -so " + (folder / name));
        EXPECT_NE(seen.find("UTM zone 40N"), std::string::npos) << seen;
        EXPECT_EQ(seen.find("Warning"), std::string::npos) << seen;
    }
}

TEST(Exchange, FailuresNameTheFileAndLeaveOutputs) {
    const scratch_folder folder;
    make_project(folder / "p.gpkg");
    write_bytes(folder / "text.geojson", "{\"type\": \"FeatureColl");
    write_bytes(folder / "old.geojson", "kept");
    const std::string before = bytes_of(folder / "p.gpkg");
    const auto refused = [&](const std::string& file, const auto& action) {
        const std::string error = error_of(action);
        EXPECT_TRUE(error.starts_with((folder / file) + ": ")) << error;
        EXPECT_EQ(error.find('\n'), std::string::npos) << error;
    };
    refused("none.shp", [&] { imported(folder / "none.shp"); });
    refused("text.geojson", [&] { imported(folder / "text.geojson"); });
    refused("o.pdf", [&] { export_all(folder / "o.pdf", sample_scenes); });
    refused("p.gpkg", [&] { export_all(folder / "p.gpkg", sample_scenes, "", folder / "p.gpkg"); });
    refused("no/o.gpkg", [&] { export_all(folder / "no/o.gpkg", sample_scenes); });
    const new_scene long_caption{std::string(300, 'x'), true, "", polyline{{1, 2}, {3, 4}}};
    refused("o.shp", [&] { export_all(folder / "o.shp", {&long_caption, 1}); });
    EXPECT_THROW(
        load_exchange().export_lines(folder / "old.geojson", {}, "",
                                     []() -> std::optional<new_scene> { throw exchange_error("stopped"); }),
        exchange_error);
    EXPECT_EQ(bytes_of(folder / "old.geojson"), "kept");
    EXPECT_TRUE(bytes_of(folder / "p.gpkg") == before);
    EXPECT_EQ(folder.files(), 3) << "nothing half-written stays";
}

}  // namespace
}  // namespace project_test
