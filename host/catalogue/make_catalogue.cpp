/// make_catalogue SOURCE_DIR OUT_DIR: writes the four catalogue tables and their index from readable sources.

#include <algorithm>
#include <cstdint>
#include <exception>
#include <iostream>
#include <span>
#include <stdexcept>

#include "catalogue/index.h"
#include "support/catalogue.h"
#include "support/catalogue_columns.h"
#include "support/dbf.h"

namespace oxhost {
namespace {

/// Every column is text as wide as its longest cell, so that each number stands as its source has it.
std::vector<ox::Tox_dbf_field_def> fitting_columns(std::span<const std::string_view> names,
                                                   const std::vector<catalogue_record>& records) {
    std::vector<ox::Tox_dbf_field_def> columns;
    for (const auto name : names) {
        std::size_t width = 1;
        for (const auto& record : records) width = std::max(width, record.text(name).size());
        columns.push_back({std::string(name), 'C', static_cast<std::uint32_t>(width), 0});
    }
    return columns;
}

/// What the table cannot hold as it is: unknown columns, texts beyond ASCII, asterisks (they read as blanks).
void require_storable(const catalogue_record& record, std::span<const std::string_view> names) {
    for (const auto& [column, text] : record.fields) {
        const bool plain = std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~' && c != '*'; });
        if (std::ranges::find(names, column) == names.end() || !plain || text.size() > 255) {
            throw std::runtime_error(record.place + ": " + column + " cannot hold \"" + text + "\"");
        }
    }
}

void write_table(const std::filesystem::path& path, std::span<const std::string_view> names,
                 const std::vector<catalogue_record>& records) {
    for (const auto& record : records) require_storable(record, names);
    const auto columns = fitting_columns(names, records);
    const auto count = static_cast<std::uint32_t>(records.size());
    ox::Tox_dbf table;
    if (table.dbf_create(path.string(), columns, count) != 0) {
        throw std::runtime_error(path.string() + ": cannot be created");
    }
    for (std::uint32_t row = 0; row < count; ++row) {
        table.go_record(row);
        for (std::uint32_t column = 0; column < names.size(); ++column) {
            table.set_text(column, records[row].text(names[column]));
        }
    }
    table.dbf_close();
    std::uint64_t size = 32 * columns.size() + 33 + count + 1;  // header, deletion flags, end mark
    for (const auto& column : columns) size += std::uint64_t{column.length} * count;
    if (std::filesystem::file_size(path) != size)
        throw std::runtime_error(path.string() + ": cannot be written");
}

void make_catalogue(const std::filesystem::path& sources, const std::filesystem::path& out) {
    const auto all = read_catalogue_sources(sources);
    std::filesystem::create_directories(out);
    const auto table = [&](const char* name) { return out / std::filesystem::path(name).filename(); };
    write_table(table(ox::ellps_table), ox::ellps_columns, all.ellipsoids);
    write_table(table(ox::datums_table), ox::datum_columns, all.datums);
    write_table(table(ox::usual_projections_table), ox::projection_columns, all.usual);
    write_table(table(ox::zonal_projections_table), ox::projection_columns, all.zonal);
    write_index(out / catalogue_index_file, all);
}

}  // namespace
}  // namespace oxhost

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: make_catalogue SOURCE_DIR OUT_DIR\n";
        return 2;
    }
    try {
        oxhost::make_catalogue(argv[1], argv[2]);
    } catch (const std::exception& e) {
        std::cerr << "make_catalogue: " << e.what() << '\n';
        return 1;
    }
    return 0;
}
