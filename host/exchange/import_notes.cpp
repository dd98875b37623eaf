#include "exchange/import_notes.h"

#include "base/text.h"

namespace oxhost {

namespace {

constexpr std::size_t names_told = 10;

struct reason_text {
    std::string_view russian, english;
};

/// In the order of `loss`.
constexpr std::array<reason_text, static_cast<std::size_t>(loss::reasons)> reason_texts{{
    {"пропущены точки", "points skipped"},
    {"пропущены полигоны", "polygons skipped"},
    {"пропущены прочие фигуры", "other shapes skipped"},
    {"пропущены объекты без геометрии", "features without geometry skipped"},
    {"пропущены линии с нечисловыми координатами", "lines skipped whose coordinates are no numbers"},
    {"пропущены строки без линии или чисел координат (счёт без заголовка)",
     "rows skipped that lack the line or numbers for its coordinates (counted without the header)"},
    {"кривые заменены хордами", "curves made into chords"},
    {"отброшены меры (M) вдоль кривых", "measures (M) along curves dropped"},
    {"линии взяты из коллекций", "lines taken out of collections"},
    {"пустые линии сохранены пустыми", "empty lines kept as empty"},
    {"линии из одной вершины", "lines of a single vertex"},
    {"вершины без высоты", "vertices without height"},
    {"время приведено к UTC", "times moved to UTC"},
    {"время без часового пояса принято за UTC", "times without a zone taken as UTC"},
    {"тексты проекций не распознаны", "projection texts not understood"},
    {"отброшено оформление объектов", "drawing styles dropped"},
}};

}  // namespace

void import_notes::count(loss reason, std::string_view name) {
    counted& of = at(reason);
    ++of.number;
    if (of.named == names_told) return;
    append_item(of.names, name);
    ++of.named;
}

std::string import_notes::losses() const {
    std::string line;
    for (std::size_t i = 0; i < counts_.size(); ++i) {
        const counted& of = counts_[i];
        if (!of.number) continue;
        const auto [russian, english] = reason_texts[i];
        append_item(line, words(russian, english) + ": " + std::to_string(of.number));
        if (of.names.empty()) continue;
        line += " (" + of.names + (of.number > of.named ? ", ...)" : ")");
    }
    return line;
}

std::string quoted_list(const std::vector<std::string>& names) {
    std::string list;
    for (std::size_t i = 0; i < names.size() && i < names_told; ++i) append_item(list, '"' + names[i] + '"');
    if (names.size() > names_told)
        list += words(" и ещё ", " and ") + std::to_string(names.size() - names_told) + words("", " more");
    return list;
}

}  // namespace oxhost
