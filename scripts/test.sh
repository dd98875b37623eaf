#!/usr/bin/env bash
# Installs, judges the sources, builds and runs all tests: as released, under the address and undefined-behaviour
# sanitizers, then the Windows build under Wine.
source "$(dirname "${BASH_SOURCE[0]}")/step.sh"

scripts/setup.sh --tests
scripts/lint.sh
for preset in release asan windows; do
    step "Configuring build/$preset" cmake --preset "$preset" -DBUILD_TESTING=ON -DOX_DESKTOP=ON
    step "Building build/$preset" cmake --build --preset "$preset" --parallel "$(nproc)"
    step "Testing build/$preset" ctest --preset "$preset" --parallel "$(nproc)"
done
