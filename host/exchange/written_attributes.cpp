#include "exchange/written_attributes.h"

#include <ogrsf_frmts.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "base/language.h"
#include "base/numbers.h"
#include "base/text.h"

namespace oxhost {

namespace {

// Of dBase tables.
constexpr std::size_t dbase_text_width = 254;  // bytes
constexpr std::size_t dbase_name_width = 10;   // bytes
constexpr int dbase_time_width = 32;
constexpr std::size_t dbase_real_width = 24;                              // characters, with 15 decimals
constexpr std::int64_t dbase_integers_below = 1'000'000'000'000'000'000;  // 18 digits

struct type_in_layer {
    OGRFieldType type;
    OGRFieldSubType subtype = OFSTNone;
};

type_in_layer type_for(field_type type, bool dbase) {
    switch (type) {
        case field_type::integer:
            return {OFTInteger64};
        case field_type::real:
            return {OFTReal};
        case field_type::text:
            return {OFTString};
        case field_type::boolean:
            return {OFTInteger, dbase ? OFSTNone : OFSTBoolean};
        case field_type::date:
            return {OFTDate};
        case field_type::date_time:
            return {dbase ? OFTString : OFTDateTime};
        case field_type::binary:
            return {OFTBinary};
    }
    return {OFTString};
}

/// At most so many bytes of the text, whole characters only.
std::string beginning(const std::string& text, std::size_t bytes) {
    if (text.size() <= bytes) return text;
    while (bytes > 0 && (static_cast<unsigned char>(text[bytes]) & 0xC0) == 0x80) --bytes;
    return text.substr(0, bytes);
}

std::optional<std::int64_t> as_integer(const field_value& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) return *number;
    if (const auto* text = std::get_if<std::string>(&value)) return parse_whole_number(*text);
    const auto* real = std::get_if<double>(&value);
    if (!real || std::nearbyint(*real) != *real || std::abs(*real) >= 9e18) return {};
    return static_cast<std::int64_t>(*real);
}

std::optional<double> as_real(const field_value& value) {
    if (const auto* real = std::get_if<double>(&value)) return *real;
    if (const auto* number = std::get_if<std::int64_t>(&value)) return static_cast<double>(*number);
    const auto* text = std::get_if<std::string>(&value);
    return text ? parse_number(*text) : std::nullopt;
}

std::optional<std::string> as_text(const field_value& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    if (const auto* number = std::get_if<std::int64_t>(&value)) return std::to_string(*number);
    if (const auto* real = std::get_if<double>(&value)) return number_text(*real);
    return {};
}

/// What a dBase table reads back of a number; nothing when its digits have no room.
std::optional<double> through_dbase(double number) {
    std::array<char, 400> digits{};
    const int length = std::snprintf(digits.data(), digits.size(), "%.15f", number);
    const std::string text =
        std::string(digits.data(), static_cast<std::size_t>(length)).substr(0, dbase_real_width);
    return text.find('.') == text.npos ? std::nullopt : parse_number(text);
}

/// Whether a time has more digits of a second than GDAL keeps.
bool finer_than_milliseconds(const std::string& time) {
    const auto dot = time.find('.');
    if (dot == time.npos) return false;
    const auto last = time.find_last_of("123456789");  // zeros at the end say nothing
    return last != time.npos && last > dot + 3 && time.find_first_of("+-Z", dot) > last;
}

}  // namespace

std::size_t text_limit(export_format format) {
    return format == export_format::shapefile ? dbase_text_width : 0;
}

std::string written_attributes::fitting_name(const std::string& name) const {
    if (format_ != export_format::shapefile) return name;
    std::string fitting = beginning(name, dbase_name_width);
    for (int number = 1; layer_.GetLayerDefn()->GetFieldIndex(fitting.c_str()) >= 0; ++number) {
        const std::string suffix = '_' + std::to_string(number);
        fitting = beginning(name, dbase_name_width - suffix.size()) + suffix;
    }
    return fitting;
}

bool written_attributes::add(const field& wanted) {
    const bool dbase = format_ == export_format::shapefile;
    column& made = columns_.emplace_back(column{wanted});
    if (dbase && wanted.type == field_type::binary) return true;
    const std::string name = fitting_name(wanted.name);
    const auto [type, subtype] = type_for(wanted.type, dbase);
    OGRFieldDefn definition(name.c_str(), type);
    definition.SetSubType(subtype);
    if (dbase && wanted.type == field_type::text) definition.SetWidth(dbase_text_width);
    if (dbase && wanted.type == field_type::date_time) definition.SetWidth(dbase_time_width);
    if (dbase && wanted.type == field_type::boolean) definition.SetWidth(1);
    if (layer_.CreateField(&definition) != OGRERR_NONE) return false;
    made.index = layer_.GetLayerDefn()->GetFieldCount() - 1;
    if (name != wanted.name)
        lost_.add(in_language("имена полей сокращены", "field names shortened"), wanted.name + " = " + name);
    if (dbase && wanted.type == field_type::date_time)
        lost_.add(in_language("поля даты и времени записаны текстом", "date-time fields written as text"),
                  name);
    if (dbase && wanted.type == field_type::boolean && wanted.name != "profile")
        lost_.add(in_language("логические поля записаны как 0 и 1", "boolean fields written as 0 and 1"),
                  name);
    return true;
}

void written_attributes::set(OGRFeature& feature, const std::vector<field_value>& values) const {
    for (std::size_t i = 0; i < std::min(values.size(), columns_.size()); ++i) {
        const column& to = columns_[i];
        if (std::holds_alternative<std::monostate>(values[i])) continue;
        if (to.index < 0)
            lost_.add(in_language("двоичные значения опущены", "binary values left out"), to.as.name);
        else if (!set(feature, to, values[i]))
            lost_.add(in_language("значения, не подходящие к типу поля, опущены",
                                  "values that do not fit their field's type left out"),
                      to.as.name);
        else
            note_rounding(to, values[i]);
    }
}

bool written_attributes::set(OGRFeature& feature, const column& to, const field_value& value) const {
    switch (to.as.type) {
        case field_type::integer:
        case field_type::boolean: {
            const auto number = as_integer(value);
            if (number) feature.SetField(to.index, static_cast<GIntBig>(*number));
            return number.has_value();
        }
        case field_type::real: {
            const auto number = as_real(value);
            if (number && format_ == export_format::shapefile && !through_dbase(*number)) return false;
            if (number) feature.SetField(to.index, *number);
            return number.has_value();
        }
        case field_type::binary: {
            const auto* bytes = std::get_if<std::vector<std::byte>>(&value);
            if (bytes) feature.SetField(to.index, static_cast<int>(bytes->size()), bytes->data());
            return bytes != nullptr;
        }
        case field_type::text:
        case field_type::date:
        case field_type::date_time:
            break;
    }
    const auto text = as_text(value);
    if (!text) return false;
    const OGRFieldType type = feature.GetFieldDefnRef(to.index)->GetType();
    if (type == OFTString) {
        feature.SetField(to.index, text->c_str());
        return true;
    }
    OGRField time;
    constexpr std::size_t date_length = 10;
    if (!OGRParseDate(text->c_str(), &time, 0) || (type == OFTDate && text->size() != date_length))
        return false;
    feature.SetField(to.index, &time);
    return true;
}

void written_attributes::note_rounding(const column& to, const field_value& value) const {
    const auto rounded = [&](std::string_view kind) { lost_.add(kind, to.as.name); };
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (to.as.type == field_type::date_time && format_ != export_format::shapefile &&
            finer_than_milliseconds(*text))
            rounded(in_language("время округлено до миллисекунд", "times rounded to milliseconds"));
        return;
    }
    if (format_ != export_format::shapefile) return;
    if (to.as.type == field_type::real) {
        if (const double number = *as_real(value); through_dbase(number) != number)
            rounded(in_language("числа округлены до 15 знаков после точки или 24 знаков",
                                "numbers rounded to 15 decimals or 24 characters"));
    } else if (to.as.type == field_type::integer) {
        const std::int64_t number = as_integer(value).value_or(0);
        if (number >= dbase_integers_below || number <= -dbase_integers_below / 10)
            rounded(in_language("целые числа длиннее 18 знаков программы читают как вещественные",
                                "integers of more than 18 characters, which programs read as reals"));
    }
}

}  // namespace oxhost
