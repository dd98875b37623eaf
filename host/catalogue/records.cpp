#include "catalogue/records.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <set>
#include <sstream>
#include <stdexcept>

#include "base/language.h"
#include "base/numbers.h"

namespace oxhost {
namespace {

[[noreturn]] void refuse(const tsv_row& row, const std::string& reason) {
    throw std::runtime_error(row.place + ": " + reason);
}

double require_number(const tsv_row& row, std::string_view text) {
    const auto number = parse_number(text);
    if (!number) refuse(row, "\"" + std::string(text) + words("\" — не число", "\" is no number"));
    return *number;
}

int whole_number(const tsv_row& row, std::string_view column) {
    const std::string& text = row[column];
    const auto number = parse_whole_number(text);
    if (!number)
        refuse(row,
               std::string(column) + " \"" + text + words("\" — не целое число", "\" is no whole number"));
    return static_cast<int>(*number);
}

catalogue_record begin_record(const tsv_row& row, std::initializer_list<const char*> copied) {
    catalogue_record record{row.place, {}, row["source"], {}, {}};
    for (const char* column : copied) record.fields[column] = row[column];
    return record;
}

void switch_on(catalogue_record& record, const std::string& flag) { record.fields.emplace(flag, "1"); }

/// The four columns of a parameter from its cell: empty (not used), `ask` or MIN..MAX (the user enters
/// it), or a number (fixed).
void set_parameter(catalogue_record& record, const tsv_row& row, const std::string& name,
                   const std::string& cell) {
    if (cell.empty()) return;
    switch_on(record, name);
    if (cell == "ask") return;
    if (const auto dots = cell.find(".."); dots != std::string::npos) {
        record.fields[name + "_MIN"] = cell.substr(0, dots);
        record.fields[name + "_MAX"] = cell.substr(dots + 2);
        require_number(row, record.fields[name + "_MIN"]);
        require_number(row, record.fields[name + "_MAX"]);
    } else {
        record.fields[name + "_V"] = cell;
        require_number(row, cell);
    }
}

void set_units(catalogue_record& record, const tsv_row& row) {
    if (row["UNITS"].empty()) return;
    switch_on(record, "UNITS");
    record.fields["UNITS_V"] = row["UNITS"];
}

catalogue_record ellipsoid_record(const tsv_row& row) {
    for (const char* column : {"A", "B", "RF"}) {
        if (!row[column].empty()) require_number(row, row[column]);
    }
    if (row["A"].empty() || row["B"].empty() == row["RF"].empty())
        refuse(row, words("нужны A и одно из B и RF", "needs A and one of B and RF"));
    whole_number(row, "ELLPS_ID");
    return begin_record(row, {"ELLPS_ID", "ELLPS_NAME", "ELLPS", "A", "B", "RF"});
}

catalogue_record datum_record(const tsv_row& row, const std::vector<catalogue_record>& ellipsoids) {
    static constexpr std::array shift{"SHIFT_X0", "SHIFT_Y0", "SHIFT_Z0", "ROTAT_X0",
                                      "ROTAT_Y0", "ROTAT_Z0", "SCALE_F0"};
    auto record = begin_record(row, {"DATUM_NAME", "DATUM"});
    for (const char* column : shift) {
        require_number(row, row[column]);
        record.fields[column] = row[column];
    }
    const auto ellipsoid = std::ranges::find(ellipsoids, row["ellipsoid"],
                                             [](const catalogue_record& e) { return e.text("ELLPS_NAME"); });
    if (ellipsoid == ellipsoids.end())
        refuse(row, words("нет эллипсоида \"", "no ellipsoid \"") + row["ellipsoid"] + "\"");
    record.fields["ELLPS_ID"] = ellipsoid->text("ELLPS_ID");
    record.also = row["also"];
    std::istringstream codes(row["systems"]);
    for (std::string code; codes >> code;) record.systems.push_back("EPSG:" + code);
    return record;
}

catalogue_record usual_record(const tsv_row& row) {
    auto record = begin_record(row, {"PRJ_NAME", "PRJ_ALIAS", "PROJ", "SOUTH"});
    for (const char* name :
         {"LAT_1", "LAT_2", "LAT_TS", "LAT_0", "LON_0", "LONC", "ALPHA", "K_0", "X_0", "Y_0"}) {
        set_parameter(record, row, name, row[name]);
    }
    set_units(record, row);
    return record;
}

/// Twelve significant digits, as many as a composed text carries.
std::string number_text(double number) {
    std::array<char, 32> digits{};
    return {digits.data(),
            std::to_chars(digits.begin(), digits.end(), number, std::chars_format::general, 12).ptr};
}

/// "39E", "171W", "180", "0", "41d32'E".
std::string meridian_text(double longitude) {
    const long minutes = std::lround(std::abs(longitude) * 60);
    std::string text = std::to_string(minutes / 60);
    if (minutes % 60 != 0) text += "d" + std::to_string(minutes % 60) + "'";
    if (minutes % (180 * 60) != 0) text += longitude < 0 ? 'W' : 'E';
    return text;
}

/// "40N (CM 57E)": the label's "#" stands for the zone's number.
std::string zone_name(const tsv_row& row, int zone, double meridian) {
    std::string label = row["label"];
    const auto place = label.find('#');
    if (place == std::string::npos)
        refuse(row,
               words("в названии нет места для номера зоны", "the label has no place for the zone's number"));
    return label.replace(place, 1, std::to_string(zone)) + " (CM " + meridian_text(meridian) + ")";
}

catalogue_record zonal_record(const tsv_row& row, int zone) {
    auto record = begin_record(row, {"PRJ_NAME", "PRJ_ALIAS", "PROJ", "SOUTH", "DATUM"});
    record.also = row["also"];
    for (const char* name : {"LAT_0", "K_0", "Y_0"}) set_parameter(record, row, name, row[name]);
    double meridian = require_number(row, row["cm_of_0"]) + whole_number(row, "width") * zone;
    if (meridian > 180) meridian -= 360;
    if (row["LON_0"] == "cm") set_parameter(record, row, "LON_0", number_text(meridian));
    if (!row["X_0"].empty()) {
        set_parameter(record, row, "X_0",
                      std::to_string(whole_number(row, "X_0") + whole_number(row, "x_step") * zone));
    }
    set_units(record, row);
    switch_on(record, "ZONE");
    record.fields["ZONE_V"] = std::to_string(zone);
    record.fields["ZONE_N"] = zone_name(row, zone, meridian);
    // The source names the first zone's code, or has words for zones without one.
    static constexpr std::string_view epsg = "EPSG:";
    if (int code = 0; record.source.starts_with(epsg)) {
        const std::string digits = record.source.substr(epsg.size());
        std::from_chars(digits.data(), digits.data() + digits.size(), code);
        record.source = std::string(epsg) + std::to_string(code + zone - whole_number(row, "first"));
    }
    return record;
}

/// No two records have the same texts in all of the columns.
void require_distinct(const std::vector<catalogue_record>& records,
                      std::initializer_list<const char*> columns) {
    std::set<std::string> seen;
    for (const auto& record : records) {
        std::string key;
        for (const char* column : columns) key += (key.empty() ? "" : ", ") + record.text(column);
        if (!seen.insert(key).second)
            throw std::runtime_error(record.place + ": \"" + key +
                                     words("\" уже есть", "\" is there already"));
    }
}

}  // namespace

std::string catalogue_record::text(std::string_view column) const {
    const auto field = fields.find(column);
    return field == fields.end() ? std::string() : field->second;
}

catalogue_records read_catalogue_sources(const std::filesystem::path& folder) {
    catalogue_records all;
    for (const auto& row : read_tsv(folder / "ellipsoids.tsv"))
        all.ellipsoids.push_back(ellipsoid_record(row));
    require_distinct(all.ellipsoids, {"ELLPS_ID"});
    require_distinct(all.ellipsoids, {"ELLPS_NAME"});
    for (const auto& row : read_tsv(folder / "datums.tsv"))
        all.datums.push_back(datum_record(row, all.ellipsoids));
    require_distinct(all.datums, {"DATUM_NAME"});
    for (const auto& row : read_tsv(folder / "projections.tsv")) all.usual.push_back(usual_record(row));
    require_distinct(all.usual, {"PRJ_NAME"});
    for (const auto& row : read_tsv(folder / "zones.tsv")) {
        const auto named = [&](const catalogue_record& datum) {
            return datum.text("DATUM_NAME") == row["DATUM"];
        };
        if (std::ranges::none_of(all.datums, named))
            refuse(row, words("нет датума \"", "no datum \"") + row["DATUM"] + "\"");
        for (int zone = whole_number(row, "first"); zone <= whole_number(row, "last"); ++zone) {
            all.zonal.push_back(zonal_record(row, zone));
        }
    }
    require_distinct(all.zonal, {"PRJ_NAME", "ZONE_V"});
    return all;
}

}  // namespace oxhost
