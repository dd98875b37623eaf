#include "project/columns.h"

#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

#include "base/text.h"

namespace oxhost {

namespace {

constexpr std::array<std::string_view, 5> own_columns{"fid", "geom", "caption", "profile", "proj4"};

/// As GeoPackage spells them, in the order of field_type; the others are what other programs may have added.
constexpr std::array<std::pair<std::string_view, field_type>, 13> spellings{
    {{"INTEGER", field_type::integer},
     {"DOUBLE", field_type::real},
     {"TEXT", field_type::text},
     {"BOOLEAN", field_type::boolean},
     {"DATE", field_type::date},
     {"DATETIME", field_type::date_time},
     {"BLOB", field_type::binary},
     {"REAL", field_type::real},
     {"FLOAT", field_type::real},
     {"INT", field_type::integer},
     {"TINYINT", field_type::integer},
     {"SMALLINT", field_type::integer},
     {"MEDIUMINT", field_type::integer}}};

field_type type_of(const std::string& declared) {
    const std::string bare = declared.substr(0, declared.find('('));
    const auto is_it = [&](const auto& each) { return lower(bare) == lower(std::string(each.first)); };
    const auto found = std::ranges::find_if(spellings, is_it);
    return found == spellings.end() ? field_type::text : found->second;
}

bool same_name(std::string_view a, std::string_view b) {
    return lower(std::string(a)) == lower(std::string(b));
}

bool is_own(std::string_view name) {
    return std::ranges::any_of(own_columns, [&](std::string_view own) { return same_name(own, name); });
}

}  // namespace

std::string as_identifier(std::string_view name) {
    std::string text = "\"";
    for (const char c : name) text.append(c == '"' ? 2 : 1, c);
    return text + '"';
}

std::vector<field> read_fields(sqlite::connection& db) {
    std::vector<field> found;
    sqlite::statement columns(db, "SELECT name, type FROM pragma_table_info('scenes')");
    while (columns.step())
        if (const std::string name = columns.text(0); !is_own(name))
            found.push_back({name, type_of(columns.text(1))});
    return found;
}

std::string add_field(sqlite::connection& db, std::vector<field>& present, const field& wanted,
                      std::span<const std::string> taken) {
    field made = wanted;
    for (int number = 1;; ++number) {
        const auto named = [&](const field& each) { return same_name(each.name, made.name); };
        const auto there = std::ranges::find_if(present, named);
        const bool free = there != present.end() && std::ranges::find(taken, there->name) == taken.end();
        if (free && there->type == wanted.type) return there->name;
        if (there == present.end() && !is_own(made.name) && !made.name.empty()) break;
        made.name = wanted.name + '_' + std::to_string(number);
    }
    const auto type = spellings[static_cast<std::size_t>(wanted.type)].first;
    db.run(("ALTER TABLE scenes ADD COLUMN " + as_identifier(made.name) + ' ' + std::string(type)).c_str());
    present.push_back(made);
    return made.name;
}

void bind(sqlite::statement& to, int parameter, const field_value& value) {
    const auto bind_it = [&]<class Value>(const Value& given) {
        if constexpr (std::is_same_v<Value, std::monostate>)
            to.bind_null(parameter);
        else if constexpr (std::is_same_v<Value, std::vector<std::byte>>)
            to.bind(parameter, std::span<const std::byte>(given));
        else
            to.bind(parameter, given);
    };
    std::visit(bind_it, value);
}

field_value read_value(const sqlite::statement& row, int column) {
    switch (row.type(column)) {
        case SQLITE_INTEGER:
            return row.integer(column);
        case SQLITE_FLOAT:
            return row.real(column);
        case SQLITE_TEXT:
            return row.text(column);
        case SQLITE_BLOB: {
            const auto bytes = row.blob(column);
            return std::vector<std::byte>(bytes.begin(), bytes.end());
        }
        default:
            return {};
    }
}

}  // namespace oxhost
