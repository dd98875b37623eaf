#!/usr/bin/env bash
# From a fresh checkout to a reprojected sample project: installs, builds, imports, lists, reprojects. With --window the
# host's window is built too, and opens the result.
source "$(dirname "${BASH_SOURCE[0]}")/step.sh"

[[ $# -eq 0 || "$*" == --window ]] || { echo "usage: run.sh [--window]" >&2; exit 64; }
window=${1:-}
scripts/setup.sh $window
step "Configuring build/release" cmake --preset release -DBUILD_TESTING=OFF -DOX_DESKTOP="${window:+ON}"
step "Building" cmake --build --preset release --parallel "$(nproc)"

oxhost=build/release/oxhost
project=out/sample.gpkg
mkdir -p out
rm -f "$project" "$project"-*  # with the journal of a run that was cut off
step "Importing samples/*.geojson" "$oxhost" import "$project" samples/*.geojson
"$oxhost" list "$project"
"$oxhost" reproject "$project" --all --yes --to EPSG:32640 --report out/report.json --map out/map.svg --overwrite

echo "Project: $project"
echo "Report:  out/report.json"
echo "Map:     out/map.svg"

if [[ -n $window ]]; then
    [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]] || { echo "Window:  no display here; elsewhere: $oxhost open $project"; exit 0; }
    exec "$oxhost" open "$project"
fi
