#include "exchange/attributes.h"

#include <ogrsf_frmts.h>

#include <algorithm>
#include <chrono>
#include <nlohmann/json.hpp>

#include "base/text.h"

namespace oxhost {

namespace {

constexpr int zone_unknown = 0, zone_local = 1, zone_utc = 100;  // GDAL's marks; others count quarter hours

std::string two_digits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

std::string date_text(const std::chrono::year_month_day& day) {
    const int year = static_cast<int>(day.year());
    const std::string digits = std::to_string(year);
    return std::string(digits.size() < 4 ? 4 - digits.size() : 0, '0') + digits + '-' +
           two_digits(static_cast<int>(static_cast<unsigned>(day.month()))) + '-' +
           two_digits(static_cast<int>(static_cast<unsigned>(day.day())));
}

std::string time_text(const OGRFeature& feature, int source, field_type type, import_notes& notes) {
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, zone = 0;
    float second = 0;
    feature.GetFieldAsDateTime(source, &year, &month, &day, &hour, &minute, &second, &zone);
    using namespace std::chrono;
    const sys_days date = std::chrono::year(year) / month / day;
    if (type == field_type::date) return date_text(date);
    auto moment = date + hours(hour) + minutes(minute) +
                  milliseconds(static_cast<int>(std::lround(static_cast<double>(second) * 1000)));
    if (zone == zone_unknown || zone == zone_local) notes.count(loss::times_without_zone);
    if (zone > zone_local && zone != zone_utc) {
        moment -= minutes(15 * (zone - zone_utc));
        notes.count(loss::times_in_utc);
    }
    const auto whole_day = floor<days>(moment);
    const hh_mm_ss clock(moment - whole_day);
    const auto thousandths = std::to_string(clock.subseconds().count());
    return date_text(whole_day) + 'T' + two_digits(static_cast<int>(clock.hours().count())) + ':' +
           two_digits(static_cast<int>(clock.minutes().count())) + ':' +
           two_digits(static_cast<int>(clock.seconds().count())) + '.' +
           std::string(3 - thousandths.size(), '0') + thousandths + 'Z';
}

template <class Number>
std::string list_text(const Number* numbers, int count, bool truths) {
    auto list = nlohmann::json::array();
    for (int i = 0; i < count; ++i) truths ? list.push_back(numbers[i] != 0) : list.push_back(numbers[i]);
    return list.dump();
}

std::string list_text(const OGRFeature& feature, int source) {
    const OGRFieldDefn& kind = *feature.GetFieldDefnRef(source);
    const bool truths = kind.GetSubType() == OFSTBoolean;
    int count = 0;
    switch (kind.GetType()) {
        case OFTIntegerList: {
            const int* numbers = feature.GetFieldAsIntegerList(source, &count);
            return list_text(numbers, count, truths);
        }
        case OFTInteger64List: {
            const GIntBig* numbers = feature.GetFieldAsInteger64List(source, &count);
            return list_text(numbers, count, false);
        }
        case OFTRealList: {
            const double* numbers = feature.GetFieldAsDoubleList(source, &count);
            return list_text(numbers, count, false);
        }
        default: {
            auto list = nlohmann::json::array();
            for (char** text = feature.GetFieldAsStringList(source); text && *text; ++text)
                list.push_back(*text);
            return list.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
        }
    }
}

bool is_list(OGRFieldType type) {
    return type == OFTIntegerList || type == OFTInteger64List || type == OFTRealList || type == OFTStringList;
}

}  // namespace

field field_of(const OGRFieldDefn& source) {
    const auto type = [&] {
        switch (source.GetType()) {
            case OFTInteger:
                return source.GetSubType() == OFSTBoolean ? field_type::boolean : field_type::integer;
            case OFTInteger64:
                return field_type::integer;
            case OFTReal:
                return field_type::real;
            case OFTDate:
                return field_type::date;
            case OFTDateTime:
                return field_type::date_time;
            case OFTBinary:
                return field_type::binary;
            default:
                return field_type::text;
        }
    };
    return {source.GetNameRef(), type()};
}

field_value value_of(const OGRFeature& feature, int source, field_type type, import_notes& notes) {
    if (!feature.IsFieldSetAndNotNull(source)) return {};
    switch (type) {
        case field_type::integer:
        case field_type::boolean:
            return std::int64_t{feature.GetFieldAsInteger64(source)};
        case field_type::real:
            return feature.GetFieldAsDouble(source);
        case field_type::date:
        case field_type::date_time:
            return time_text(feature, source, type, notes);
        case field_type::binary: {
            int size = 0;
            const auto* start = reinterpret_cast<const std::byte*>(feature.GetFieldAsBinary(source, &size));
            return std::vector<std::byte>(start, start + size);
        }
        case field_type::text:
            break;
    }
    if (is_list(feature.GetFieldDefnRef(source)->GetType())) return list_text(feature, source);
    return std::string(feature.GetFieldAsString(source));
}

layer_attributes::layer_attributes(OGRFeatureDefn& layer, std::span<const int> taken, import_notes& notes) {
    std::vector<std::string> times, lists;
    for (int i = 0; i < layer.GetFieldCount(); ++i) {
        if (std::ranges::find(taken, i) != taken.end()) continue;
        const OGRFieldDefn& source = *layer.GetFieldDefn(i);
        fields_.push_back(field_of(source));
        sources_.push_back(i);
        if (source.GetType() == OFTTime) times.push_back(fields_.back().name);
        if (is_list(source.GetType())) lists.push_back(fields_.back().name);
    }
    if (!times.empty())
        notes.remark(words("время хранится как текст: ", "times kept as text: ") + quoted_list(times));
    if (!lists.empty())
        notes.remark(words("списки хранятся как текст JSON: ", "lists kept as JSON text: ") +
                     quoted_list(lists));
}

void layer_attributes::read(const OGRFeature& feature, std::vector<field_value>& values,
                            import_notes& notes) const {
    for (std::size_t i = 0; i < fields_.size(); ++i)
        values.push_back(value_of(feature, sources_[i], fields_[i].type, notes));
}

}  // namespace oxhost
