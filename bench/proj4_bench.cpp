/// Taking a full Gauss-Krüger text apart and putting it together again.

#include <benchmark/benchmark.h>

#include "projection/proj4_params.h"

namespace {

constexpr const char* gauss_kruger =
    "+proj=tmerc +lat_0=0 +lon_0=39 +k=1 +x_0=7500000 +y_0=0 +ellps=krass "
    "+towgs84=23.57,-140.95,-79.8,0,0.35,0.79,-0.22 +units=m +lon_wrap=45 +no_defs";

void parse_and_compose(benchmark::State& state) {
    ox::Tox_proj4_params params;
    for (auto _ : state) {
        params.set_text(gauss_kruger);
        params.parse();
        params.compose();
        benchmark::DoNotOptimize(params.text().data());
    }
}
BENCHMARK(parse_and_compose);

void parse_and_compose_in_a_fresh_model(benchmark::State& state) {
    for (auto _ : state) {
        ox::Tox_proj4_params params;
        params.set_text(gauss_kruger);
        params.parse();
        params.compose();
        benchmark::DoNotOptimize(params.text().data());
    }
}
BENCHMARK(parse_and_compose_in_a_fresh_model);

}  // namespace
