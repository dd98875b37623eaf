#!/usr/bin/env bash
# Draws the window's pictures of the documentation anew, in both languages, from the bundled sample.
source "$(dirname "${BASH_SOURCE[0]}")/step.sh"

scripts/setup.sh --tests
step "Configuring build/release" cmake --preset release -DBUILD_TESTING=ON -DOX_DESKTOP=ON
step "Building" cmake --build --preset release --parallel "$(nproc)" --target oxhost window_pictures
project=$(mktemp -d)/sample.gpkg
step "Importing samples/*.geojson" build/release/oxhost import "$project" samples/*.geojson
step "Drawing docs/images" build/release/window_pictures "$project" docs/images
rm -rf "$(dirname "$project")" docs/images/*.dark.png  # those are only for looking at
