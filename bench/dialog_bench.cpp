/// Opening the projection dialog: reading the four catalogue tables and the favourites, taking a text
/// apart, showing it. Run from the build folder, where the tables stand beside the program.

#include <benchmark/benchmark.h>

#include "projection/projection_dialog.h"

namespace {

constexpr const wchar_t* gauss_krueger =
    L"+proj=tmerc +lat_0=0 +lon_0=57 +k=1 +x_0=10500000 +y_0=0 +ellps=krass "
    L"+towgs84=23.57,-140.95,-79.8,0,0.35,0.79,-0.22 +units=m +no_defs";

void load_tables(benchmark::State& state) {
    for (auto _ : state) {
        const ox::dialog::projection_model model;
        if (model.datums().empty()) state.SkipWithError("no tables in prj_def beside the program");
    }
}
BENCHMARK(load_tables)->Unit(benchmark::kMillisecond);

void open_dialog(benchmark::State& state) {
    for (auto _ : state) {
        ox::dialog::projection dialog;
        dialog.set_text(gauss_krueger);
        benchmark::DoNotOptimize(dialog.text());
    }
}
BENCHMARK(open_dialog)->Unit(benchmark::kMillisecond);

}  // namespace
