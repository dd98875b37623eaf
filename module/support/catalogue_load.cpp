#include <algorithm>
#include <span>

#include "support/catalogue.h"
#include "support/catalogue_columns.h"
#include "support/dbf.h"
#include "support/numbers.h"
#include "support/text.h"

namespace ox {
namespace {

/// A table that is open for one load. Columns are addressed by their place in the list of required ones.
class catalogue_table {
public:
    int open(const std::string& path, std::span<const std::string_view> required) {
        if (const int code = table_->dbf_open(path, true)) return code;
        for (const auto name : required) {
            if (!table_->find_field(name, fields_.emplace_back())) return bad_structure;
        }
        return Tox_file::success;
    }

    /// Calls `read` for every row there is. Where the header promises more, one read beyond them reports it.
    template <class Read>
    void for_each_row(Read read) {
        const auto rows = table_->stored_record_count();
        for (std::uint32_t row = 0; row < rows; ++row) {
            table_->go_record(row);
            read();
        }
        if (rows < table_->record_count()) table_->go_record(rows);
    }

    /// Cells filled with asterisks have no value.
    std::string text(std::size_t column) {
        std::string text = table_->get_text(fields_[column]);
        std::ranges::replace(text, '*', ' ');
        return std::string(trimmed(text));
    }
    std::optional<double> number(std::size_t column) { return scan_double(text(column)); }
    std::uint32_t id(std::size_t column) {
        return static_cast<std::uint32_t>(scan_int(text(column)).value_or(0));
    }
    bool flag(std::size_t column) { return number(column).value_or(0) > 0; }

private:
    std::unique_ptr<Tox_dbf> table_ = std::make_unique<Tox_dbf>();
    std::vector<std::uint32_t> fields_;
};

template <class Record, class Read>
int load(const std::string& path, std::span<const std::string_view> columns, Tox_pj_list<Record>& list,
         Read read) {
    list.clear();
    catalogue_table table;
    if (const int code = table.open(path, columns)) return code;
    table.for_each_row([&] { read(table, list.append()); });
    return Tox_file::success;
}

consteval std::size_t column(std::string_view name) { return column_of(projection_columns, name); }

/// Number with its flag; 0 where there is none.
void take(std::optional<double> number, bool& has, double& value) {
    has = number.has_value();
    value = number.value_or(0);
}

void read_ellps(catalogue_table& row, Tox_pj_ellps& ellps) {
    constexpr auto at = [](std::string_view name) consteval { return column_of(ellps_columns, name); };
    ellps.id = row.id(at("ELLPS_ID"));
    ellps.name = row.text(at("ELLPS_NAME"));
    ellps.code = row.text(at("ELLPS"));
    ellps.a = row.number(at("A")).value_or(0);
    take(row.number(at("B")), ellps.has_b, ellps.b);
    take(row.number(at("RF")), ellps.has_rf, ellps.rf);
}

void read_datum(catalogue_table& row, Tox_pj_datum& datum) {
    constexpr auto at = [](std::string_view name) consteval { return column_of(datum_columns, name); };
    datum.name = row.text(at("DATUM_NAME"));
    datum.code = row.text(at("DATUM"));
    datum.shift_x = row.number(at("SHIFT_X0")).value_or(0);
    datum.shift_y = row.number(at("SHIFT_Y0")).value_or(0);
    datum.shift_z = row.number(at("SHIFT_Z0")).value_or(0);
    datum.rotate_x = row.number(at("ROTAT_X0")).value_or(0);
    datum.rotate_y = row.number(at("ROTAT_Y0")).value_or(0);
    datum.rotate_z = row.number(at("ROTAT_Z0")).value_or(0);
    datum.scale = row.number(at("SCALE_F0")).value_or(0);
    datum.ellps_id = row.id(at("ELLPS_ID"));
}

struct numeric_parameter {
    Tox_pj_dbl Tox_pj_proj::*slot;
    std::size_t column;  // flag, value, lower and upper bound
};

constexpr numeric_parameter numeric_parameters[] = {
    {&Tox_pj_proj::lat_1, column("LAT_1")},   {&Tox_pj_proj::lat_2, column("LAT_2")},
    {&Tox_pj_proj::lat_ts, column("LAT_TS")}, {&Tox_pj_proj::lat_0, column("LAT_0")},
    {&Tox_pj_proj::lon_0, column("LON_0")},   {&Tox_pj_proj::lonc, column("LONC")},
    {&Tox_pj_proj::alpha, column("ALPHA")},   {&Tox_pj_proj::k_0, column("K_0")},
    {&Tox_pj_proj::x_0, column("X_0")},       {&Tox_pj_proj::y_0, column("Y_0")},
};

void read_slot(catalogue_table& row, std::size_t column, Tox_pj_dbl& slot) {
    slot.used = row.flag(column);
    if (!slot.used) return;
    take(row.number(column + 1), slot.has_value, slot.value);
    take(row.number(column + 2), slot.has_min, slot.min);
    take(row.number(column + 3), slot.has_max, slot.max);
    slot.needs_input = !slot.has_value;
}

void set_text(Tox_pj_str& slot, std::string text) {
    slot.has_value = !text.empty();
    slot.text = std::move(text);
}

void read_projection(catalogue_table& row, Tox_pj_proj& record) {
    record.name = row.text(column("PRJ_NAME"));
    record.alias = row.text(column("PRJ_ALIAS"));
    record.proj = row.text(column("PROJ"));
    record.south.used = record.south.has_value = record.south.value = row.flag(column("SOUTH"));
    record.units.used = row.flag(column("UNITS"));
    if (record.units.used) record.units.text = row.text(column("UNITS_V"));
    record.zone.used = row.flag(column("ZONE"));
    if (record.zone.used) {
        record.zone.value = truncated(row.number(column("ZONE_V")).value_or(0));
        set_text(record.zone_n, row.text(column("ZONE_N")));
    }
    set_text(record.datum, row.text(column("DATUM")));
    for (const auto& parameter : numeric_parameters) read_slot(row, parameter.column, record.*parameter.slot);
}

}  // namespace

int load_ellps(const std::string& path, Tox_pj_ellps_list& list) {
    return load(path, ellps_columns, list, read_ellps);
}

int load_datums(const std::string& path, Tox_pj_datum_list& list) {
    return load(path, datum_columns, list, [&](catalogue_table& row, Tox_pj_datum& datum) {
        datum.id = static_cast<std::uint32_t>(list.size());
        read_datum(row, datum);
    });
}

int load_projections(const std::string& path, Tox_pj_proj_list& list) {
    return load(path, projection_columns, list, [&](catalogue_table& row, Tox_pj_proj& record) {
        record.id = static_cast<std::uint32_t>(list.size());
        read_projection(row, record);
    });
}

void add_geographic(Tox_pj_proj_list& list) {
    const auto add = [&](const char* name, const char* proj) {
        auto& record = list.append();
        record.id = static_cast<std::uint32_t>(list.size());
        record.name = name;
        record.proj = proj;
    };
    add("Longitude/Latitude", "longlat");
    add("Latitude/Longitude", "latlong");
}

}  // namespace ox
