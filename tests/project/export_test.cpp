#include "exchange/exchange.h"

#include "testing/case_name.h"
#include "workspace.h"

namespace project_test {
namespace {

struct collected final : scene_taker {
    std::vector<std::string> begin_layer(std::span<const field> fields) override {
        std::vector<std::string> names;
        for (const field& each : fields) names.push_back(each.name);
        return names;
    }
    void take(const new_scene& scene) override { scenes.push_back(scene); }
    std::vector<new_scene> scenes;
};

export_order order_of(const fs::path& out, std::span<const new_scene> scenes) {
    export_order order;
    order.out = out;
    order.layers = {{.name = "lines", .epsg = {}, .wkt = {}}};
    order.next = [at = scenes.begin(), end = scenes.end()]() mutable -> std::optional<layered_scene> {
        return at == end ? std::nullopt : std::optional(layered_scene{0, *at++});
    };
    return order;
}

void export_all(const fs::path& out, std::span<const new_scene> scenes) {
    load_exchange().export_lines(order_of(out, scenes));
}

TEST_CASES(RoundTrip, GivesTheSameProject, case_of<const char*>, {"GeoJson", "o.geojson", ""},
           {"GeoPackage", "o.gpkg", ""}, {"Shapefile", "o.shp", ""}) {
    const scratch_folder folder;
    std::vector<new_scene> scenes{sample_scenes.begin(), sample_scenes.begin() + 3};
    scenes[1].line = polyline{{0.1 + 0.2, 1.0 / 3}, {1234567.1234567891, 1e-7 / 3}, {-5, 6e15 / 7}};
    export_all(folder / c.given, scenes);
    collected read;
    load_exchange().import_lines(folder / c.given, {}, read);
    for (new_scene& each : read.scenes) each.values.clear();
    make_project(folder / "again.gpkg", read.scenes);
    expect_scenes(*project::open(folder / "again.gpkg", open_mode::read_only), scenes);
}

TEST(Export, FailuresNameTheFileAndLeaveOutputs) {
    const scratch_folder folder;
    write_bytes(folder / "old.geojson", "kept");
    const auto refused = [&](const std::string& file, const auto& action) {
        const std::string error = error_of(action);
        EXPECT_TRUE(error.starts_with((folder / file) + ": ")) << error;
        EXPECT_EQ(error.find('\n'), std::string::npos) << error;
    };
    refused("o.pdf", [&] { export_all(folder / "o.pdf", sample_scenes); });
    refused("no/o.gpkg", [&] { export_all(folder / "no/o.gpkg", sample_scenes); });
    refused("old.geojson", [&] { export_all(folder / "old.geojson", sample_scenes); });
    const new_scene long_caption{std::string(300, 'x'), true, "", polyline{{1, 2}, {3, 4}}};
    refused("o.shp", [&] { export_all(folder / "o.shp", {&long_caption, 1}); });
    export_order stopped = order_of(folder / "old.geojson", {});
    stopped.overwrite = true;
    stopped.next = []() -> std::optional<layered_scene> { throw exchange_error("stopped"); };
    EXPECT_THROW(load_exchange().export_lines(stopped), exchange_error);
    EXPECT_EQ(bytes_of(folder / "old.geojson"), "kept");
    EXPECT_EQ(folder.files(), 1) << "nothing half-written stays";
}

}  // namespace
}  // namespace project_test
