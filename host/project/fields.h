#pragma once
/// What scenes carry beside their own five columns: the attributes that their features had.

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace oxhost {

enum class field_type { integer, real, text, boolean, date, date_time, binary };

/// A column of the scenes' table.
struct field {
    std::string name;  ///< UTF-8; no two of a table differ in the case of ASCII letters only
    field_type type = field_type::text;
    friend bool operator==(const field&, const field&) = default;
};

/// Nothing where a feature has no value. Booleans are 0 and 1; dates are texts, "2026-11-23" and
/// "2026-11-23T21:30:00.000Z".
using field_value = std::variant<std::monostate, std::int64_t, double, std::string, std::vector<std::byte>>;

}  // namespace oxhost
