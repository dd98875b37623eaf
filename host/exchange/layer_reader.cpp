#include "exchange/layer_reader.h"

#include <ogrsf_frmts.h>

#include <algorithm>
#include <array>
#include <initializer_list>

#include "base/text.h"
#include "exchange/line_parts.h"

namespace oxhost {

namespace {

constexpr std::string_view truths[] = {"1", "true", "yes", "да"};
constexpr std::string_view untruths[] = {"", "0", "false", "no", "нет"};

/// The first of the named fields that the layer has, whatever the case of its letters; -1 when none.
int find_field(const OGRFeatureDefn& layer, std::initializer_list<const char*> names) {
    for (const char* name : names)
        if (const int field = layer.GetFieldIndex(name); field >= 0) return field;
    return -1;
}

bool is_true(const OGRFeature& feature, int field) {
    const std::string text = lower(feature.GetFieldAsString(field));
    return std::ranges::find(untruths, text) == std::end(untruths);
}

/// Whether a field says yes or no of each feature: a column called `profile` may also hold names or numbers.
bool is_flag(OGRLayer& layer, int field) {
    OGRFeatureDefn& fields = *layer.GetLayerDefn();
    if (fields.GetFieldDefn(field)->GetSubType() == OFSTBoolean) return true;
    CPLStringList others;
    others.AddString("OGR_GEOMETRY");
    others.AddString("OGR_STYLE");
    for (int i = 0; i < fields.GetFieldCount(); ++i)
        if (i != field) others.AddString(fields.GetFieldDefn(i)->GetNameRef());
    layer.SetIgnoredFields(const_cast<const char**>(others.List()));
    const auto says_either = [&](const OGRFeatureUniquePtr& feature) {
        if (!feature->IsFieldSetAndNotNull(field)) return true;
        const std::string text = lower(feature->GetFieldAsString(field));
        return std::ranges::find(truths, text) != std::end(truths) ||
               std::ranges::find(untruths, text) != std::end(untruths);
    };
    bool all = true;
    for (const OGRFeatureUniquePtr& feature : layer)
        if (!(all = says_either(feature))) break;
    layer.SetIgnoredFields(nullptr);
    layer.ResetReading();
    return all;
}

bool is_text(const OGRFeatureDefn& layer, int field) {
    return layer.GetFieldDefn(field)->GetType() == OFTString;
}

}  // namespace

std::vector<field> origin_fields() {
    return {{"source_layer", field_type::text},
            {"source_fid", field_type::integer},
            {"source_crs", field_type::text}};
}

void begin_layer(scene_taker& taker, const std::vector<field>& fields, const std::string& layer,
                 import_notes& notes) {
    const std::vector<std::string> columns = taker.begin_layer(fields);
    std::string renamed;
    for (std::size_t i = 0; i < fields.size() && i < columns.size(); ++i)
        if (columns[i] != fields[i].name) append_item(renamed, fields[i].name + " > " + columns[i]);
    if (!renamed.empty())
        notes.remark(words("слой ", "layer ") + '"' + layer +
                     "\": " + words("поля переименованы: ", "columns renamed: ") + renamed);
}

layer_reader::layer_reader(const std::filesystem::path& source, OGRLayer& layer,
                           const import_options& options, import_notes& notes)
    : layer_(layer),
      options_(options),
      notes_(notes),
      crs_(read_layer_crs(source, layer, options)),
      name_(layer.GetName()),
      caption_(find_field(*layer.GetLayerDefn(), {"caption", "name", "title"})),
      profile_(find_field(*layer.GetLayerDefn(), {"profile"})),
      proj4_(options.proj4 ? -1 : find_field(*layer.GetLayerDefn(), {"proj4"})) {
    OGRFeatureDefn& fields = *layer.GetLayerDefn();
    if (options.not_profile || (profile_ >= 0 && !is_flag(layer, profile_))) profile_ = -1;
    if (proj4_ >= 0 && !is_text(fields, proj4_)) proj4_ = -1;

    std::vector<int> taken;
    const int own_caption = find_field(fields, {"caption"});  // a name or title stays an attribute as well
    if (own_caption >= 0 && is_text(fields, own_caption)) taken.push_back(own_caption);
    for (const int own : {profile_, proj4_})
        if (own >= 0) taken.push_back(own);
    attributes_.emplace(fields, taken, notes);
    keeps_origin_ =
        find_field(fields, {"source_layer", "source_lay"}) >= 0 && find_field(fields, {"source_fid"}) >= 0;
    if (options.proj4 && !crs_.name.empty())
        notes_.remark(words("слой ", "layer ") + '"' + name_ + "\": " +
                      words("вместо его системы взята заданная, своя: ",
                            "the projection given stands in place of its own: ") +
                      crs_.name);
}

std::size_t layer_reader::read(scene_taker& taker) {
    std::size_t scenes = 0;
    for (const OGRFeatureUniquePtr& feature : layer_) scenes += read(*feature, taker);
    if (took_layer_crs_)
        for (const std::string& each : crs_.remarks)
            notes_.remark(words("слой ", "layer ") + '"' + name_ + "\", " + each);
    return scenes;
}

std::size_t layer_reader::read(const OGRFeature& feature, scene_taker& taker) {
    const OGRGeometry* geometry = feature.GetGeometryRef();
    new_scene scene;
    if (!geometry) {
        if (profile_ < 0 || !feature.IsFieldSetAndNotNull(profile_)) {
            notes_.count(loss::no_geometry);
            return 0;
        }
        describe(feature, scene);
        hand(scene, taker);
        return 1;
    }
    std::vector<section_line> lines = line_parts(*geometry, crs_.northing_first, notes_);
    if (lines.empty()) return 0;
    describe(feature, scene);
    if (feature.GetStyleString()) notes_.count(loss::styles);
    const std::string caption = scene.caption;
    std::size_t scenes = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines.size() > 1) scene.caption = caption + ' ' + std::to_string(i + 1);
        if (!std::ranges::all_of(lines[i].xy, is_finite)) {
            notes_.count(loss::not_finite, '"' + scene.caption + '"');
            continue;
        }
        if (lines[i].xy.empty()) notes_.count(loss::empty_lines);
        if (lines[i].xy.size() == 1) notes_.count(loss::single_vertex);
        scene.line = std::move(lines[i]);
        hand(scene, taker);
        ++scenes;
    }
    return scenes;
}

void layer_reader::hand(const new_scene& scene, scene_taker& taker) {
    if (!begun_) {  // a layer without lines leaves no columns
        std::vector<field> fields = attributes_->fields();
        for (field& each : fields)
            if (keeps_origin_ && lower(each.name) == "source_lay")
                each.name = "source_layer";  // as dBase cut it
        if (!keeps_origin_) std::ranges::copy(origin_fields(), std::back_inserter(fields));
        begin_layer(taker, fields, name_, notes_);
        begun_ = true;
    }
    taker.take(scene);
}

/// All of a scene but its line.
void layer_reader::describe(const OGRFeature& feature, new_scene& scene) {
    scene.caption = caption_ >= 0 ? feature.GetFieldAsString(caption_) : "";
    if (scene.caption.empty()) scene.caption = name_ + ' ' + std::to_string(feature.GetFID());
    scene.profile = !options_.not_profile &&
                    (profile_ < 0 || !feature.IsFieldSetAndNotNull(profile_) || is_true(feature, profile_));
    const bool own_text = proj4_ >= 0 && feature.IsFieldSetAndNotNull(proj4_);
    const bool layers = !options_.proj4 && !own_text;
    took_layer_crs_ |= layers;
    scene.proj4 = options_.proj4 ? *options_.proj4
                  : own_text     ? given_text(feature.GetFieldAsString(proj4_))
                                 : crs_.proj4;
    attributes_->read(feature, scene.values, notes_);
    if (keeps_origin_) return;
    scene.values.emplace_back(name_);
    scene.values.emplace_back(std::int64_t{feature.GetFID()});
    scene.values.push_back(layers && !crs_.name.empty() ? field_value(crs_.name) : field_value());
}

/// A feature's own projection: a proj4 text as it stands, a code or WKT as its text.
std::string layer_reader::given_text(const std::string& text) {
    if (trimmed(text).empty() || text.find("proj=") != text.npos) return text;
    std::string proj4 = options_.crs_text ? options_.crs_text(text) : "";
    if (!proj4.empty()) return proj4;
    notes_.count(loss::unreadable_text, '"' + text + '"');
    return text;
}

}  // namespace oxhost
