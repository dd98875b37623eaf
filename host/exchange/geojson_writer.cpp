#include <array>
#include <charconv>
#include <cmath>
#include <fstream>
#include <nlohmann/json.hpp>

#include "base/language.h"
#include "exchange/exchange.h"
#include "exchange/writers.h"

namespace oxhost {

namespace {

using json = nlohmann::ordered_json;

/// As the older edition of the format names a system; software takes a WKT for a name as well.
std::string crs_name(const export_layer& layer) {
    constexpr std::string_view authority = "EPSG:";
    if (layer.epsg == "EPSG:4326") return "urn:ogc:def:crs:OGC:1.3:CRS84";
    if (!layer.epsg.empty()) return "urn:ogc:def:crs:EPSG::" + layer.epsg.substr(authority.size());
    return layer.wkt;
}

/// One feature a line.
class geojson_writer final : public line_writer {
public:
    geojson_writer(const export_order& order, const std::filesystem::path& file, losses& lost)
        : order_(order), lost_(lost), to_(file, std::ios::binary) {
        to_ << R"({"type": "FeatureCollection", )";
        if (const std::string name = crs_name(order.layers.front()); !name.empty())
            to_ << R"("crs": )" << json{{"type", "name"}, {"properties", {{"name", name}}}}.dump() << ", ";
        to_ << R"("features": [)";
    }

    void write(const layered_scene& placed) override {
        const new_scene& scene = placed.scene;
        json properties{{"caption", scene.caption}, {"profile", scene.profile}, {"proj4", scene.proj4}};
        for (std::size_t i = 0; i < std::min(scene.values.size(), order_.fields.size()); ++i)
            properties[order_.fields[i].name] = value_of(scene.values[i], order_.fields[i]);
        text_ = separator_;
        text_ += R"({"type":"Feature","properties":)";
        text_ += properties.dump(-1, ' ', false, json::error_handler_t::replace);
        text_ += R"(,"geometry":)";
        if (scene.line)
            add_geometry(scene);
        else
            text_ += "null";
        text_ += '}';
        to_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
        separator_ = ",\n";
    }

    void finish() override {
        to_ << "\n]}\n";
        to_.close();
        if (!to_)
            throw exchange_error(order_.out.string() + words(": запись невозможна", ": cannot be written"));
    }

private:
    json value_of(const field_value& value, const field& of) {
        const auto lose = [&](std::string_view russian, std::string_view english) {
            lost_.add(in_language(russian, english), of.name);
        };
        if (const auto* number = std::get_if<std::int64_t>(&value))
            return of.type == field_type::boolean && (*number == 0 || *number == 1) ? json(*number != 0)
                                                                                    : json(*number);
        if (const auto* text = std::get_if<std::string>(&value)) return *text;
        if (const auto* real = std::get_if<double>(&value)) {
            if (!std::isfinite(*real)) lose("бесконечные числа опущены", "infinite numbers left out");
            return *real;  // what is not finite becomes null
        }
        const auto* bytes = std::get_if<std::vector<std::byte>>(&value);
        if (!bytes) return nullptr;
        lose("двоичные значения записаны шестнадцатеричным текстом",
             "binary values written as hexadecimal text");
        std::string digits;
        for (const std::byte each : *bytes)
            for (const int shift : {4, 0})
                digits += "0123456789abcdef"[std::to_integer<unsigned>(each >> shift) & 0xFU];
        return digits;
    }

    void add_geometry(const new_scene& scene) {
        const section_line& line = *scene.line;
        if (!line.m.empty())
            lost_.add(in_language("линии, меры которых опущены: в GeoJSON им нет места",
                                  "lines without their measures, for which GeoJSON has no place"));
        text_ += R"({"type":"LineString","coordinates":[)";
        for (std::size_t i = 0; i < line.xy.size(); ++i) {
            text_ += i ? ",[" : "[";
            add_number(line.xy[i].x, scene, i);
            text_ += ',';
            add_number(line.xy[i].y, scene, i);
            if (!line.z.empty()) {
                text_ += ',';
                add_number(line.z[i], scene, i);
            }
            text_ += ']';
        }
        text_ += "]}";
    }

    /// Shortest digits that read back as the same number.
    void add_number(double number, const new_scene& of, std::size_t vertex) {
        if (!std::isfinite(number))
            throw exchange_error(order_.out.string() + ": \"" + of.caption +
                                 "\": " + words("не число в вершине ", "no number at vertex ") +
                                 std::to_string(vertex));
        std::array<char, 32> digits{};
        text_.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
    }

    const export_order& order_;
    losses& lost_;
    std::ofstream to_;
    std::string text_;
    const char* separator_ = "\n";
};

}  // namespace

std::unique_ptr<line_writer> write_geojson(const export_order& order, const std::filesystem::path& file,
                                           losses& lost) {
    return std::make_unique<geojson_writer>(order, file, lost);
}

}  // namespace oxhost
