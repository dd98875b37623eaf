#include "exchange/point_table.h"

#include <ogrsf_frmts.h>

#include <algorithm>
#include <limits>
#include <unordered_map>

#include "base/language.h"
#include "base/numbers.h"
#include "base/text.h"
#include "exchange/attributes.h"
#include "exchange/layer_crs.h"
#include "exchange/layer_reader.h"

namespace oxhost {

namespace {

constexpr double missing = std::numeric_limits<double>::quiet_NaN();

struct table_row {
    point place{};
    double z = missing, m = missing;
    double number = missing;  ///< of the order field
    std::string order;        ///< the same as text
};

struct table_line {
    std::string caption;
    std::vector<table_row> rows;
    std::vector<field_value> values;  ///< of the first row
    std::vector<bool> varies;         ///< along the line, for each value
};

/// "ПК2" before "ПК10": runs of digits count as numbers.
bool naturally_before(std::string_view a, std::string_view b) {
    const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
    const auto take_digits = [&](std::string_view& text) {
        const std::size_t size = std::min(
            text.size(), static_cast<std::size_t>(std::ranges::find_if_not(text, is_digit) - text.begin()));
        std::string_view digits = text.substr(0, size);
        text.remove_prefix(size);
        digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
        return digits;
    };
    while (!a.empty() && !b.empty()) {
        if (is_digit(a.front()) && is_digit(b.front())) {
            const std::string_view left = take_digits(a), right = take_digits(b);
            if (left.size() != right.size()) return left.size() < right.size();
            if (left != right) return left < right;
        } else {
            if (a.front() != b.front())
                return static_cast<unsigned char>(a.front()) < static_cast<unsigned char>(b.front());
            a.remove_prefix(1);
            b.remove_prefix(1);
        }
    }
    return a.size() < b.size();
}

class table_reader {
public:
    table_reader(const std::filesystem::path& source, OGRLayer& layer, const point_fields& columns,
                 const import_options& options, import_notes& notes)
        : layer_(layer),
          name_(layer.GetName()),
          columns_(columns),
          options_(options),
          notes_(notes),
          crs_(read_layer_crs(source, layer, options)),
          attributes_(*layer.GetLayerDefn(), std::vector{columns.x, columns.y, columns.z, columns.order},
                      notes) {}

    std::size_t read(scene_taker& taker) {
        tell_choice();
        std::size_t number = 0;
        for (const OGRFeatureUniquePtr& feature : layer_) take(*feature, ++number);
        if (commas_)
            remark(in_language("запятые в числах прочитаны как десятичные: ",
                               "commas in numbers were read as decimal points: "),
                   std::to_string(commas_));
        sort_rows();
        return hand_out(taker);
    }

private:
    void remark(std::string_view what, const std::string& details = {}) {
        notes_.remark(words("таблица ", "table ") + '"' + name_ + "\": " + std::string(what) + details);
    }
    std::string field_name(int field) const {
        if (field < 0) return words("нет", "none");
        return std::string("\"") + layer_.GetLayerDefn()->GetFieldDefn(field)->GetNameRef() + '"';
    }

    void tell_choice() {
        std::string choice = words("линия ", "line ") + field_name(columns_.line) +
                             words(", порядок ", ", order ") + field_name(columns_.order);
        if (columns_.x >= 0) choice += ", x " + field_name(columns_.x) + ", y " + field_name(columns_.y);
        if (columns_.x >= 0 || columns_.z >= 0) choice += ", z " + field_name(columns_.z);
        remark(in_language("поля точек: ", "columns of its points: "), choice);
    }

    double number_of(const OGRFeature& feature, int field) {
        if (!feature.IsFieldSetAndNotNull(field)) return missing;
        const OGRFieldType type = layer_.GetLayerDefn()->GetFieldDefn(field)->GetType();
        if (type != OFTString) return feature.GetFieldAsDouble(field);
        std::string text(trimmed(feature.GetFieldAsString(field)));
        const std::size_t comma = text.find(',');
        const bool decimal =
            comma != text.npos && text.find(',', comma + 1) == text.npos && text.find('.') == text.npos;
        if (decimal) text[comma] = '.';
        const auto number = parse_number(text);
        commas_ += decimal && number;
        return number.value_or(missing);
    }

    bool place(const OGRFeature& feature, table_row& row) {
        if (columns_.x >= 0) {
            row.place = {number_of(feature, columns_.x), number_of(feature, columns_.y)};
        } else {
            const OGRGeometry* geometry = feature.GetGeometryRef();
            if (!geometry || wkbFlatten(geometry->getGeometryType()) != wkbPoint || geometry->IsEmpty())
                return false;
            const OGRPoint& given = *geometry->toPoint();
            row.place =
                crs_.northing_first ? point{given.getY(), given.getX()} : point{given.getX(), given.getY()};
            if (given.Is3D()) row.z = given.getZ();
            if (given.IsMeasured()) row.m = given.getM();
        }
        if (columns_.z >= 0) row.z = number_of(feature, columns_.z);
        return is_finite(row.place);
    }

    void take(const OGRFeature& feature, std::size_t number) {
        table_row row;
        const std::string caption(trimmed(feature.GetFieldAsString(columns_.line)));
        if (caption.empty() || !place(feature, row)) return notes_.count(loss::rows, std::to_string(number));
        if (columns_.order >= 0) {
            const std::size_t commas = commas_;
            row.number = number_of(feature, columns_.order);
            commas_ = commas;
            row.order = trimmed(feature.GetFieldAsString(columns_.order));
            if (!std::isfinite(row.number) && not_numbered_.empty()) not_numbered_ = std::to_string(number);
        }
        std::vector<field_value> values;
        attributes_.read(feature, values, notes_);
        const auto [found, added] = by_caption_.try_emplace(caption, lines_.size());
        if (added) lines_.push_back({caption, {}, values, std::vector<bool>(values.size())});
        table_line& line = lines_[found->second];
        for (std::size_t i = 0; i < values.size(); ++i)
            if (values[i] != line.values[i]) line.varies[i] = true;
        line.rows.push_back(std::move(row));
    }

    void sort_rows() {
        if (columns_.order < 0) return;
        const bool numbers = not_numbered_.empty();
        if (!numbers)
            remark(columns_.order_given
                       ? in_language(
                             "порядок не числовой, сравнивается как текст; первая такая строка: ",
                             "the order is no number everywhere and is compared as text; first such row: ")
                       : in_language(
                             "порядок не числовой, взят порядок строк файла; первая такая строка: ",
                             "the order is no number everywhere, that of the file is kept; first such row: "),
                   not_numbered_);
        if (!numbers && !columns_.order_given) return;
        for (table_line& line : lines_)
            std::ranges::stable_sort(line.rows, [&](const table_row& a, const table_row& b) {
                return numbers ? a.number < b.number : naturally_before(a.order, b.order);
            });
    }

    /// Which values become columns: those that some line has throughout. The others are told.
    std::vector<bool> lasting_values() {
        const std::vector<field>& fields = attributes_.fields();
        std::vector<bool> lasting(fields.size());
        std::string lost = columns_.order >= 0 ? field_name(columns_.order) : "";
        for (std::size_t i = 0; i < fields.size(); ++i) {
            std::size_t varying = 0;
            bool constant = false;
            for (const table_line& line : lines_) {
                varying += line.varies[i];
                constant |= !line.varies[i] && line.values[i].index() != 0;
            }
            lasting[i] = constant || varying == 0;
            if (!varying) continue;
            append_item(lost, '"' + fields[i].name + '"');
            if (constant) lost += ' ' + std::to_string(varying) + '/' + std::to_string(lines_.size());
        }
        if (!lost.empty())
            remark(in_language("отброшены значения, меняющиеся вдоль линии: ",
                               "values that vary along a line are dropped: "),
                   lost);
        return lasting;
    }

    section_line take_line(table_line& from) {
        section_line line;
        const auto any = [&](double table_row::*value) {
            return std::ranges::any_of(from.rows,
                                       [&](const table_row& row) { return std::isfinite(row.*value); });
        };
        const bool heights = any(&table_row::z), measures = any(&table_row::m);
        for (const table_row& row : from.rows) {
            line.xy.push_back(row.place);
            if (heights) line.z.push_back(row.z);
            if (measures) line.m.push_back(row.m);
            notes_.count(loss::missing_heights, heights && !std::isfinite(row.z));
        }
        if (from.rows.size() == 1) notes_.count(loss::single_vertex);
        from.rows = {};
        return line;
    }

    std::size_t hand_out(scene_taker& taker) {
        if (lines_.empty()) return 0;
        const std::vector<bool> lasting = lasting_values();
        std::vector<field> fields;
        for (std::size_t i = 0; i < lasting.size(); ++i)
            if (lasting[i]) fields.push_back(attributes_.fields()[i]);
        const std::vector<field> origin = origin_fields();
        fields.insert(fields.end(), origin.begin(), origin.end());
        begin_layer(taker, fields, name_, notes_);
        for (table_line& line : lines_) {
            new_scene scene{line.caption, !options_.not_profile, options_.proj4.value_or(crs_.proj4), {}, {}};
            for (std::size_t i = 0; i < lasting.size(); ++i)
                if (lasting[i]) scene.values.push_back(line.varies[i] ? field_value() : line.values[i]);
            scene.values.emplace_back(name_);
            scene.values.emplace_back();  // a line of many rows has no number of its own
            scene.values.push_back(!options_.proj4 && !crs_.name.empty() ? field_value(crs_.name)
                                                                         : field_value());
            scene.line = take_line(line);
            taker.take(scene);
        }
        if (!options_.proj4)
            for (const std::string& each : crs_.remarks) remark(each);
        if (!options_.proj4 && crs_.proj4.empty())
            remark(columns_.degrees
                       ? in_language(
                             "долготы и широты без указания датума: сцены без проекции, задайте её в --proj4",
                             "longitudes and latitudes whose datum nothing tells: the scenes get no "
                             "projection, --proj4 gives one")
                       : in_language("система координат не указана: сцены без проекции, задайте её в --proj4",
                                     "nothing tells its coordinate system: the scenes get no projection, "
                                     "--proj4 gives one"));
        return lines_.size();
    }

    OGRLayer& layer_;
    std::string name_;
    const point_fields& columns_;
    const import_options& options_;
    import_notes& notes_;
    layer_crs crs_;
    layer_attributes attributes_;
    std::vector<table_line> lines_;  ///< in the order of their first rows
    std::unordered_map<std::string, std::size_t> by_caption_;
    std::string not_numbered_;  ///< the first row whose order is no number
    std::size_t commas_ = 0;
};

}  // namespace

std::size_t read_point_table(const std::filesystem::path& source, OGRLayer& layer, const point_fields& fields,
                             const import_options& options, import_notes& notes, scene_taker& taker) {
    return table_reader(source, layer, fields, options, notes).read(taker);
}

}  // namespace oxhost
