#!/usr/bin/env bash
# Runs a Windows program: wine.sh PROGRAM.exe ARGUMENTS... ; `--begin` prepares $WINEPREFIX and keeps its
# server, `--end` ends it. The locale gives the ANSI code page: C.UTF-8 1252, ru_RU.UTF-8 1251. (In plain
# C, Wine cannot spell Cyrillic file names.)
set -euo pipefail

export WINEPREFIX=${WINEPREFIX:-$PWD/build/wine} WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
unset DISPLAY WAYLAND_DISPLAY
PATH+=:/usr/lib/wine
loader=$(type -P wine64 || type -P wine) || { echo "wine.sh: no wine64 here" >&2; exit 127; }
# The kernel puts the loader's heap anywhere in the gigabyte behind it, now and then (1 start of 4,000) over
# the page that Wine needs at 0x7ffe0000; the program then ends with 1 and no word. Addresses that are not
# random keep clear of it, in its children too. Where that is not allowed, the chance remains.
fixed_addresses=(setarch --addr-no-randomize)
wine=("$loader")
if "${fixed_addresses[@]}" true 2>/dev/null; then wine=("${fixed_addresses[@]}" "$loader"); fi

case ${1:?program} in
--begin)
    mkdir -p "$WINEPREFIX"
    wineserver -k || true  # of tests that were interrupted
    wineserver -p </dev/null >/dev/null 2>&1  # what stays behind must not hold the caller's output
    "${wine[@]}" wineboot -i </dev/null >/dev/null 2>&1
    ;;
--end) wineserver -k ;;
*)
    # Through a file: the first program that draws starts Wine's desktop, which would keep the caller's
    # pipe open after the program has ended.
    output=$(mktemp)
    code=0
    "${wine[@]}" "$@" </dev/null >"$output" 2>&1 || code=$?
    cat "$output"
    rm -f "$output"
    exit "$code"
    ;;
esac
