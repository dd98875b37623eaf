#include "catalogue/tsv.h"

#include <fstream>
#include <stdexcept>

#include "base/language.h"

namespace oxhost {
namespace {

std::vector<std::string> split(std::string_view line) {
    std::vector<std::string> cells;
    for (;;) {
        const auto tab = line.find('\t');
        cells.emplace_back(line.substr(0, tab));
        if (tab == std::string_view::npos) return cells;
        line.remove_prefix(tab + 1);
    }
}

}  // namespace

const std::string& tsv_row::operator[](std::string_view column) const {
    const auto cell = cells.find(column);
    if (cell == cells.end())
        throw std::runtime_error(place + words(": нет столбца ", ": no column ") + std::string(column));
    return cell->second;
}

std::vector<tsv_row> read_tsv(const std::filesystem::path& path) {
    std::ifstream file(path);
    if (!file) throw std::runtime_error(path.string() + words(": не открывается", ": cannot be opened"));
    std::vector<std::string> columns;
    std::vector<tsv_row> rows;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        if (line.ends_with('\r')) line.pop_back();
        if (line.empty() || line.starts_with('#')) continue;
        auto cells = split(line);
        if (columns.empty()) {
            columns = std::move(cells);
            continue;
        }
        tsv_row row{path.filename().string() + ":" + std::to_string(number), {}};
        if (cells.size() != columns.size()) {
            throw std::runtime_error(row.place + words(": число ячеек: ", ": number of cells: ") +
                                     std::to_string(cells.size()) + words(" вместо ", " instead of ") +
                                     std::to_string(columns.size()));
        }
        for (std::size_t i = 0; i < cells.size(); ++i) row.cells.emplace(columns[i], std::move(cells[i]));
        rows.push_back(std::move(row));
    }
    if (file.bad())
        throw std::runtime_error(path.string() + words(": ошибка чтения", ": error while reading"));
    return rows;
}

}  // namespace oxhost
