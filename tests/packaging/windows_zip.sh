#!/usr/bin/env bash
# windows_zip.sh BUILD: makes the zip for Windows and looks into it.
set -euo pipefail
build=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
fail() { echo "FAILED: $*" >&2; exit 1; }

cpack --config "$build/CPackConfig.cmake" -B "$folder/made" >"$folder/log" 2>&1 || fail "cpack: $(tail -5 "$folder/log")"
mkdir "$folder/unpacked" && cd "$folder/unpacked"
cmake -E tar xf "$folder"/made/*.zip
cd ./*/ 2>/dev/null || true
expected="README.txt oxk_scn2d_prf_reproj.dll prj_def"
[[ $(echo *) == "$expected" ]] || fail "holds $(echo *), not $expected"
(($(ls prj_def/*.dbf | wc -l) == 4)) || fail "tables: $(ls prj_def)"
imports=$(x86_64-w64-mingw32-objdump -p oxk_scn2d_prf_reproj.dll | sed -n 's/.*DLL Name: //p')
others=$(grep -viE '^(oxk_.*|kernel32|user32|gdi32|advapi32|shell32|msvcrt|ucrtbase|api-ms-.*)(\.dll)?$' <<<"$imports") || true
[[ -z $others ]] || fail "the DLL needs $others"
echo "$(basename "$folder"/made/*.zip): the DLL, four tables, how to put them there"
