/// Reading every cell of a catalogue-like table: 5,000 rows of 54 columns, as texts and as numbers, with
/// this code and with shapelib; and loading such a table as a catalogue of projections.

#include <benchmark/benchmark.h>
#include <shapefil.h>

#include <cstdlib>
#include <filesystem>

#include "border/host_api/oxk_basic.h"
#include "support/catalogue.h"
#include "support/catalogue_columns.h"
#include "support/dbf.h"

// The host's part is not measured.
void* ox_string_adp_create(void (*)(const char*, void*), void (*)(const wchar_t*, void*), void*) {
    return nullptr;
}
void ox_string_adp_destroy(void*) {}
int ox_res_get_lng() { return 50000; }
void ox_options_get_main_module_path(void*) {}

namespace {

constexpr std::uint32_t rows = 5000;

const std::string& table_path() {
    static const std::string path = [] {
        auto file = (std::filesystem::temp_directory_path() / "ox_dbf_bench.dbf").string();
        std::vector<ox::Tox_dbf_field_def> columns;
        for (const auto name : ox::projection_columns) columns.push_back({std::string(name), 'N', 14, 6});
        columns[0] = {columns[0].name, 'C', 40, 0};
        ox::Tox_dbf table;
        if (table.dbf_create(file, columns, rows) != 0) std::abort();
        for (std::uint32_t row = 0; row < rows; ++row) {
            table.go_record(row);
            table.set_text(0, "Gauss-Kruger zone " + std::to_string(row));
            for (std::uint32_t i = 1; i < columns.size(); ++i) table.set_double(i, row * 0.37 + i);
        }
        return file;
    }();
    return path;
}

template <class Read>
void read_with_ox(benchmark::State& state, Read read) {
    for (auto _ : state) {
        ox::Tox_dbf table;
        if (table.dbf_open(table_path(), true) != 0) std::abort();
        for (std::uint32_t row = 0; row < rows; ++row) {
            table.go_record(row);
            for (std::uint32_t i = 0; i < table.field_count(); ++i) benchmark::DoNotOptimize(read(table, i));
        }
    }
}

template <class Read>
void read_with_shapelib(benchmark::State& state, Read read) {
    for (auto _ : state) {
        const auto table = DBFOpen(table_path().c_str(), "rb");
        if (!table) std::abort();
        for (int row = 0; row < static_cast<int>(rows); ++row) {
            for (int i = 0; i < DBFGetFieldCount(table); ++i) benchmark::DoNotOptimize(read(table, row, i));
        }
        DBFClose(table);
    }
}

void texts(benchmark::State& state) {
    read_with_ox(state, [](ox::Tox_dbf& table, std::uint32_t i) { return table.get_text(i); });
}
void texts_shapelib(benchmark::State& state) { read_with_shapelib(state, DBFReadStringAttribute); }
void numbers(benchmark::State& state) {
    read_with_ox(state, [](ox::Tox_dbf& table, std::uint32_t i) { return table.get_double(i); });
}
void numbers_shapelib(benchmark::State& state) { read_with_shapelib(state, DBFReadDoubleAttribute); }

void load_projections(benchmark::State& state) {
    ox::Tox_pj_proj_list list;
    for (auto _ : state) {
        if (ox::load_projections(table_path(), list) != 0) std::abort();
    }
}

BENCHMARK(texts)->Unit(benchmark::kMillisecond);
BENCHMARK(texts_shapelib)->Unit(benchmark::kMillisecond);
BENCHMARK(numbers)->Unit(benchmark::kMillisecond);
BENCHMARK(numbers_shapelib)->Unit(benchmark::kMillisecond);
BENCHMARK(load_projections)->Unit(benchmark::kMillisecond);

}  // namespace
