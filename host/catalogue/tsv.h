#pragma once
/// Tables of tab-separated text, UTF-8: lines that begin with "#" are comments, the first other line
/// names the columns, every further line is a row with as many cells.

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace oxhost {

using named_cells = std::map<std::string, std::string, std::less<>>;

struct tsv_row {
    std::string place;  ///< "zones.tsv:12", for messages
    named_cells cells;

    /// Throws std::runtime_error, naming the place, where the table has no such column.
    const std::string& operator[](std::string_view column) const;
};

/// Throws std::runtime_error that names the file, and the line where there is one.
std::vector<tsv_row> read_tsv(const std::filesystem::path& path);

}  // namespace oxhost
