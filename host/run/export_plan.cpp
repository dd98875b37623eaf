#include "run/export_plan.h"

#include <algorithm>
#include <map>

#include "base/language.h"
#include "base/numbers.h"
#include "base/text.h"
#include "exchange/formats.h"
#include "geodesy/crs.h"
#include "geodesy/crs_export.h"
#include "geodesy/projection_files.h"

namespace oxhost::run {

namespace {

namespace fs = std::filesystem;

/// What GeoJSON's standard prescribes.
constexpr auto geojson_system = "+proj=longlat +datum=WGS84 +no_defs";

bool has_place(const scene& asked) { return asked.line && asked.line->vertices > 0; }

/// Letters, digits and underscores of what tells the system apart: `EPSG_32640`, `tmerc_57`.
std::string short_name(const std::string& proj4, const std::string& epsg) {
    std::string name = epsg;
    if (name.empty()) {
        const proj4_text tokens(proj4);
        name = tokens.value("proj").value_or("");
        for (const char* key : {"zone", "lon_0"})
            if (const auto value = tokens.value(key)) {
                name += '_' + *value;
                break;
            }
    }
    std::ranges::replace_if(
        name, [](char c) { return c == ':' || c == ' ' || c == '/' || c == '"' || c == '\''; }, '_');
    return name;
}

class planner {
public:
    planner(std::vector<scene*> scenes, const fs::path& out, const std::optional<target>& goal)
        : out_(out), format_(format_of(out)) {
        plan_.scenes = std::move(scenes);
        if (goal) common_ = goal->proj4;
        if (!goal && format_ == export_format::geojson) common_ = geojson_system;
        says_system_ = goal || format_ != export_format::geojson;
        plan_.unwraps = !goal && format_ == export_format::geojson;
    }

    export_plan make() {
        place_lines();
        refuse_what_has_no_place();
        place_the_rest();
        plan_.transforms = common_.has_value();
        for (planned_layer& each : plan_.layers) spell(each);
        name_layers();
        if (format_ == export_format::shapefile) spell_prj();
        return std::move(plan_);
    }

private:
    [[noreturn]] void refuse(const std::string& reason) const {
        throw failure(trouble::refused, out_.string() + ": " + reason);
    }

    std::size_t add_layer(const std::string& proj4) {
        plan_.layers.emplace_back().proj4 = proj4;
        return plan_.layers.size() - 1;
    }

    /// The layer of a text, where it has one by now.
    std::optional<std::size_t> layer_of(const std::string& proj4) {
        const auto known = by_text_.find(proj4);
        if (known != by_text_.end()) return known->second;
        for (std::size_t i = 0; i < plan_.layers.size(); ++i)
            if (equal(plan_.layers[i].proj4, proj4)) return by_text_[proj4] = i;
        return {};
    }

    std::size_t layer_for(const scene& placed) {
        const std::string& proj4 = common_ && !placed.proj4.empty() ? *common_ : placed.proj4;
        const auto found = layer_of(proj4);
        return found ? *found : by_text_[proj4] = add_layer(proj4);
    }

    void put(std::size_t i, std::size_t layer) {
        const scene& placed = *plan_.scenes[i];
        plan_.layer_of[i] = layer;
        planned_layer& into = plan_.layers[layer];
        ++into.scenes;
        if (!has_place(placed)) return;
        ++into.lines;
        into.written.heights |= placed.line->heights;
        into.written.measures |= placed.line->measures;
    }

    void place_lines() {
        plan_.layer_of.resize(plan_.scenes.size());
        // Those without projection last: no layer is named after them when there are others.
        for (const bool with_projection : {true, false})
            for (std::size_t i = 0; i < plan_.scenes.size(); ++i)
                if (has_place(*plan_.scenes[i]) && plan_.scenes[i]->proj4.empty() != with_projection)
                    put(i, layer_for(*plan_.scenes[i]));
    }

    void place_the_rest() {
        if (plan_.layers.empty())
            add_layer(common_ ? *common_ : plan_.scenes.empty() ? "" : plan_.scenes.front()->proj4);
        for (std::size_t i = 0; i < plan_.scenes.size(); ++i)
            if (!has_place(*plan_.scenes[i])) put(i, layer_of(plan_.scenes[i]->proj4).value_or(0));
    }

    void refuse_what_has_no_place() const {
        const std::size_t layers = plan_.layers.size();
        const bool unprojected = layers > 0 && plan_.layers.back().proj4.empty();
        const std::string bare = unprojected ? std::to_string(plan_.layers.back().lines) : "";
        if (unprojected && layers == 1 && common_ && says_system_)
            refuse(words("линии без проекции (" + bare + "): преобразовывать не из чего",
                         "lines without projection to transform from: " + bare));
        if (format_ == export_format::geopackage || layers <= 1) return;
        if (unprojected)
            refuse(words("линий без проекции: " + bare +
                             "; выберите другие (--scene) или пишите .gpkg, где у них будет свой слой",
                         "lines without projection: " + bare +
                             "; leave them out with --scene, or write .gpkg, "
                             "where they get a layer of their own"));
        refuse(words("проекций у линий: " + std::to_string(layers) +
                         ", а слой один; --to приводит все к одной, --scene выбирает часть, в .gpkg у каждой "
                         "свой слой",
                     "the lines are in " + std::to_string(layers) +
                         " projections, and the format has one layer; --to brings them into one, --scene "
                         "chooses some, .gpkg takes a layer for each"));
    }

    /// A text that PROJ refuses makes a layer that says nothing of a system.
    void spell(planned_layer& layer) {
        if (layer.proj4.empty()) {
            if (layer.lines == 0) return;
            const std::string count = std::to_string(layer.lines);
            plan_.remarks.push_back(
                format_ == export_format::geojson
                    ? words("линии без проекции: координаты в файле — не долгота и широта",
                            "the lines have no projection: the file's coordinates are not longitude and "
                            "latitude")
                    : words("линий без проекции: " + count + "; у их слоя нет системы координат",
                            "lines without projection: " + count +
                                "; their layer says nothing of a coordinate system"));
            return;
        }
        if (!says_system_) return;
        try {
            const crs_spelling spelled = spell_out(layer.proj4);
            layer.written.epsg = spelled.epsg;
            layer.written.wkt = spelled.wkt;
        } catch (const std::invalid_argument& e) {
            plan_.remarks.push_back(words("PROJ не принимает проекцию, у слоя нет системы координат: ",
                                          "PROJ refuses a projection, the layer says nothing of a system: ") +
                                    layer.proj4 + " (" + e.what() + ")");
        }
    }

    /// One layer is called as the file is; of several each says its system.
    void name_layers() {
        const std::string stem = out_.stem().string();
        std::vector<std::string> taken;
        for (planned_layer& each : plan_.layers) {
            std::string name = stem;
            if (plan_.layers.size() > 1)
                name +=
                    '_' + (each.proj4.empty() ? "no_projection" : short_name(each.proj4, each.written.epsg));
            if (lower(name) == "scenes") name = "lines";  // or the file would pass for a project
            const std::string base = name;
            for (int number = 2; std::ranges::find(taken, lower(name)) != taken.end(); ++number)
                name = base + '_' + std::to_string(number);
            taken.push_back(lower(name));
            each.written.name = name;
        }
    }

    /// The very files that saving the projection would leave.
    void spell_prj() {
        const planned_layer& layer = plan_.layers.front();
        if (layer.written.wkt.empty()) return;
        const temporary_folder folder;
        const fs::path file = folder / "layer.prj";
        try {
            save_prj(file.string(), layer.proj4);
        } catch (const file_error& e) {
            const std::string reason = e.what();
            const std::string prefix = file.string() + ": ";
            refuse((reason.starts_with(prefix) ? reason.substr(prefix.size()) : reason) +
                   words("; .gpkg примет", "; .gpkg takes it"));
        }
        plan_.prj = read_file(file).value_or("");
        plan_.companion = read_file(file.string() + ".pj4").value_or("");
    }

    const fs::path& out_;
    export_format format_;
    std::optional<std::string> common_;  ///< what all lines are brought into
    bool says_system_;
    export_plan plan_;
    std::map<std::string, std::size_t> by_text_;
};

}  // namespace

export_plan plan_export(std::vector<scene*> scenes, const fs::path& out, const std::optional<target>& goal) {
    return planner(std::move(scenes), out, goal).make();
}

}  // namespace oxhost::run
