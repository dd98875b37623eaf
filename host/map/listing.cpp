#include "map/listing.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numeric>

#include "base/numbers.h"
#include "map/lettering.h"
#include "map/svg.h"

namespace oxhost::map {

namespace {

constexpr std::size_t most_rows = 400;
constexpr double between = 22;  // columns
constexpr double metres_width = 52, shift_width = 106, error_width = 74;
constexpr double row_height = 16, row_size = 10.5;

std::string with_decimals(double value, int decimals) {
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::fixed, decimals);
    return {digits.data(), end.ptr};
}

struct row_texts {
    std::string metres, direction, error;
};

row_texts texts_of(const listed_line& line, language wanted) {
    row_texts texts{"—", "", "—"};
    if (line.failed) texts.metres = text_in(wanted, "ошибка", "failed");
    if (const auto& shift = line.shift) {
        const bool moved = shift->metres >= 0.05;
        texts.metres = (moved ? with_decimals(shift->metres, shift->metres < 1000 ? 1 : 0) : "0") +
                       std::string(text_in(wanted, " м", " m"));
        if (moved) texts.direction = direction_words(shift->azimuth, wanted);
    }
    if (const auto& error = line.scale_error)
        texts.error = with_decimals(*error * 100, *error < 0.01 ? 3 : *error < 1 ? 2 : 0) + " %";
    return texts;
}

}  // namespace

std::string direction_words(double azimuth, language wanted) {
    static constexpr std::array<std::string_view, 8> russian{"С", "СВ", "В", "ЮВ", "Ю", "ЮЗ", "З", "СЗ"},
        english{"N", "NE", "E", "SE", "S", "SW", "W", "NW"};
    const auto& words = wanted == language::russian ? russian : english;
    const double whole = std::fmod(std::round(azimuth) + 360, 360);
    return std::string(words[static_cast<std::size_t>(std::lround(whole / 45)) % 8]) + ' ' +
           number_text(whole) + "°";
}

std::vector<std::size_t> chosen_to_list(const std::vector<listed_line>& lines) {
    std::vector<std::size_t> places(lines.size());
    std::iota(places.begin(), places.end(), 0);
    if (places.size() <= most_rows) return places;
    constexpr double before_all = 1e9;
    std::ranges::stable_sort(places, std::ranges::greater(), [&](std::size_t i) {
        return lines[i].failed ? before_all : lines[i].scale_error.value_or(-1);
    });
    places.resize(most_rows);
    std::ranges::sort(places);
    return places;
}

table list_lines(double x, double y, double width, const std::vector<listed_line>& lines, std::size_t all,
                 language wanted) {
    if (lines.empty()) return {"", 0};
    const auto say = [&](std::string_view russian, std::string_view english) {
        return text_in(wanted, russian, english);
    };
    std::string drawn;
    const double top = y;
    const auto note = [&](std::string_view text) {
        drawn += svg::text_element("note", x, y += row_height, text);
    };
    note(say("Сдвиг: наибольшее на линии изменение долготы и широты как чисел при смене датума, и куда",
             "Shift: the largest change of longitude and latitude as numbers by the change of datum, and "
             "whereto"));
    note(say("Искажение: наибольшее отличие длины отрезка в проекции от длины на эллипсоиде",
             "Scale error: the largest difference of a segment's length in the projection from that on the "
             "ellipsoid"));
    if (all > lines.size())
        note(std::string(say("Показаны ", "Listed are ")) + std::to_string(lines.size()) +
             std::string(
                 say(" линий с наибольшим искажением из ", " lines with the largest scale error of ")) +
             std::to_string(all) + std::string(say("; все — в отчёте", "; the report has all")));

    const double number_width = std::max(20.0, width_of(std::to_string(lines.back().number), row_size) + 8);
    const double fixed = number_width + shift_width + error_width;
    double longest = 80;
    for (const listed_line& each : lines) longest = std::max(longest, width_of(each.caption, row_size) + 12);
    const auto count =
        static_cast<std::size_t>(std::clamp(std::floor((width + between) / (fixed + longest + between)), 1.0,
                                            std::clamp(static_cast<double>(lines.size()) / 4, 1.0, 3.0)));
    const double across = static_cast<double>(count);
    const double column = (width - between * (across - 1)) / across;
    const double caption_width = std::min(column - fixed, longest);
    const std::size_t rows = (lines.size() + count - 1) / count;

    y += 6;
    for (std::size_t c = 0; c < count && c * rows < lines.size(); ++c) {
        const double left = x + static_cast<double>(c) * (column + between);
        const double caption = left + number_width, shift = caption + caption_width,
                     end = shift + shift_width + error_width;
        double base = y + row_height;
        const auto row = [&](std::string_view look, std::string_view number, std::string_view name,
                             const row_texts& texts) {
            drawn += svg::text_element(look, caption - 6, base, number, "end") +
                     svg::text_element(look, caption, base, shortened(name, caption_width - 8, row_size)) +
                     svg::text_element(look, shift + metres_width, base, texts.metres, "end") +
                     svg::text_element(look, shift + metres_width + 6, base, texts.direction) +
                     svg::text_element(look, end, base, texts.error, "end");
        };
        row("head", "№", say("линия", "line"),
            {std::string(say("сдвиг", "shift")), "", std::string(say("искажение", "scale error"))});
        drawn += svg::path_element("rule", 'M' + svg::pair(left, base + 4.5) + 'H' + svg::number(end));
        for (std::size_t i = c * rows; i < std::min(lines.size(), (c + 1) * rows); ++i) {
            base += row_height;
            row("row", std::to_string(lines[i].number), lines[i].caption, texts_of(lines[i], wanted));
        }
    }
    return {drawn, y + row_height * static_cast<double>(rows + 1) - top + 10};
}

}  // namespace oxhost::map
