#pragma once
/// Attributes of scenes as columns of their table; only project's own sources include this.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "project/fields.h"
#include "project/sqlite.h"

namespace oxhost {

/// The columns of `scenes` that are not the store's own, in the table's order.
std::vector<field> read_fields(sqlite::connection& db);

/// Adds a column for the field, inside the transaction at hand, unless `present` has it with this type. A
/// name that stands for something else, or is one of the `taken`, gets a number: `depth_1`. Answers the name
/// of the column.
std::string add_field(sqlite::connection& db, std::vector<field>& present, const field& wanted,
                      std::span<const std::string> taken);

/// As an SQL identifier, in quotes.
std::string as_identifier(std::string_view name);

void bind(sqlite::statement& to, int parameter, const field_value& value);
field_value read_value(const sqlite::statement& row, int column);

}  // namespace oxhost
