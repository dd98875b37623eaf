#include <ogrsf_frmts.h>

#include <algorithm>
#include <span>

#include "base/text.h"
#include "exchange/point_table.h"

namespace oxhost {

namespace {

using names = std::span<const std::string_view>;

// The likelier first.
constexpr std::string_view line_names[] = {"line",    "profile", "line_name", "linename",     "line_id",
                                           "lineid",  "lineno",  "line_no",   "pr",           "prof",
                                           "profil",  "профиль", "линия",     "разрез",       "пр",
                                           "маршрут", "track",   "traverse",  "номер_профиля"};
constexpr std::string_view order_names[] = {
    "order", "point",   "point_no", "pointno", "shot", "shotpoint", "shot_point", "sp",    "fix",
    "seq",   "station", "picket",   "пикет",   "пк",   "точка",     "порядок",    "номер", "fid"};
constexpr std::string_view height_names[] = {"z",   "elev",     "elevation", "height",
                                             "alt", "altitude", "высота",    "отметка"};

struct coordinate_names {
    std::string_view x, y;
    bool degrees;
};
constexpr coordinate_names pairs[] = {
    {"x", "y", false},
    {"easting", "northing", false},
    {"east", "north", false},
    {"x_coord", "y_coord", false},
    {"xcoord", "ycoord", false},
    {"coord_x", "coord_y", false},
    {"utm_x", "utm_y", false},
    {"lon", "lat", true},
    {"longitude", "latitude", true},
    {"long", "lat", true},
    {"lng", "lat", true},
    {"долгота", "широта", true},
};

/// In small letters, Russian ones as well.
std::string small(std::string_view text) {
    std::wstring letters = to_wide(lower(text));
    for (wchar_t& letter : letters) {
        if (letter >= L'А' && letter <= L'Я') letter += L'а' - L'А';
        if (letter == L'Ё') letter = L'ё';
    }
    return to_utf8(letters);
}

class finder {
public:
    explicit finder(OGRLayer& layer) : layer_(layer) {
        const OGRFeatureDefn& fields = *layer_.GetLayerDefn();
        for (int i = 0; i < fields.GetFieldCount(); ++i)
            names_.push_back(small(fields.GetFieldDefn(i)->GetNameRef()));
    }

    int find(std::string_view name) const {
        const auto found = std::ranges::find(names_, name);
        return found == names_.end() ? -1 : static_cast<int>(found - names_.begin());
    }
    int find(names wanted) const {
        for (const std::string_view each : wanted)
            if (const int field = find(each); field >= 0) return field;
        return -1;
    }
    /// The field that the user named, else the first of the usual ones.
    int choose(const std::string& given, names usual) const {
        if (given.empty()) return find(usual);
        if (const int field = find(small(given)); field >= 0) return field;
        std::vector<std::string> there;
        for (int i = 0; i < layer_.GetLayerDefn()->GetFieldCount(); ++i)
            there.emplace_back(layer_.GetLayerDefn()->GetFieldDefn(i)->GetNameRef());
        throw exchange_error(words("в слое ", "layer ") + '"' + layer_.GetName() + "\"" +
                             words(" нет поля ", " has no column ") + '"' + given + "\"" +
                             words("; есть ", "; there are ") + quoted_list(there));
    }

private:
    OGRLayer& layer_;
    std::vector<std::string> names_;
};

/// A layer of any geometry is judged by its first one.
bool holds_points(OGRLayer& layer) {
    const auto type = wkbFlatten(layer.GetGeomType());
    if (type != wkbUnknown) return type == wkbPoint;
    const OGRFeatureUniquePtr first(layer.GetNextFeature());
    layer.ResetReading();
    return first && first->GetGeometryRef() &&
           wkbFlatten(first->GetGeometryRef()->getGeometryType()) == wkbPoint;
}

}  // namespace

std::optional<point_fields> find_point_fields(OGRLayer& layer, const point_columns& given) {
    const bool bare = layer.GetGeomType() == wkbNone;
    if (!bare && (given.line.empty() || !holds_points(layer))) return {};

    const finder in(layer);
    point_fields found;
    if (bare) {
        for (const auto& [x, y, degrees] : pairs) {
            if (found.x >= 0) break;
            if (in.find(x) < 0 || in.find(y) < 0) continue;
            found.x = in.find(x);
            found.y = in.find(y);
            found.degrees = degrees;
        }
    }
    if (!given.x.empty() || !given.y.empty()) found.degrees = false;
    if (!given.x.empty()) found.x = in.choose(given.x, {});
    if (!given.y.empty()) found.y = in.choose(given.y, {});
    found.line = in.choose(given.line, line_names);
    found.order = in.choose(given.order, order_names);
    found.z = found.x < 0 && given.z.empty() ? -1 : in.choose(given.z, height_names);
    found.order_given = !given.order.empty();
    if (found.order == found.line) found.order = -1;
    const bool placed = (found.x >= 0 && found.y >= 0) || (found.x < 0 && found.y < 0 && !bare);
    return found.line >= 0 && placed ? std::optional(found) : std::nullopt;
}

}  // namespace oxhost
