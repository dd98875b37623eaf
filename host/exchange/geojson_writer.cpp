#include <fstream>
#include <nlohmann/json.hpp>

#include "exchange/writer.h"

namespace oxhost {

namespace {

/// One feature a line.
class geojson_writer final : public line_writer {
public:
    geojson_writer(const std::filesystem::path& out, const std::filesystem::path& file)
        : out_(out), to_(file) {
        to_ << R"({"type": "FeatureCollection", "features": [)";
    }

    void write(const new_scene& scene) override {
        using json = nlohmann::ordered_json;
        json geometry;
        if (scene.line) {
            json coordinates = json::array();
            for (const point& p : *scene.line) coordinates.push_back({p.x, p.y});
            geometry = {{"type", "LineString"}, {"coordinates", std::move(coordinates)}};
        }
        const json feature{
            {"type", "Feature"},
            {"properties", {{"caption", scene.caption}, {"profile", scene.profile}, {"proj4", scene.proj4}}},
            {"geometry", std::move(geometry)}};
        to_ << separator_ << feature.dump(-1, ' ', false, json::error_handler_t::replace);
        separator_ = ",\n";
    }

    void finish() override {
        to_ << "\n]}\n";
        to_.close();
        if (!to_) throw exchange_error(out_.string() + ": cannot be written");
    }

private:
    const std::filesystem::path out_;
    std::ofstream to_;
    const char* separator_ = "\n";
};

}  // namespace

std::unique_ptr<line_writer> write_geojson(const std::filesystem::path& out,
                                           const std::filesystem::path& file) {
    return std::make_unique<geojson_writer>(out, file);
}

}  // namespace oxhost
