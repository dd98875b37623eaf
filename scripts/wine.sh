#!/usr/bin/env bash
# Runs a Windows program: wine.sh PROGRAM.exe ARGUMENTS... ; `--begin` prepares $WINEPREFIX and keeps its
# server, `--end` ends it. The locale gives the ANSI code page: C.UTF-8 1252, ru_RU.UTF-8 1251. (In plain
# C, Wine cannot spell Cyrillic file names.)
set -euo pipefail

export WINEPREFIX=${WINEPREFIX:-$PWD/build/wine} WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
unset DISPLAY WAYLAND_DISPLAY
PATH+=:/usr/lib/wine
wine=$(type -P wine64 || type -P wine) || { echo "wine.sh: no wine64 here" >&2; exit 127; }

case ${1:?program} in
--begin)
    mkdir -p "$WINEPREFIX"
    wineserver -p </dev/null >/dev/null 2>&1  # what stays behind must not hold the caller's output
    "$wine" wineboot -i </dev/null >/dev/null 2>&1
    ;;
--end) wineserver -k ;;
*)
    # Through a file: the first program that draws starts Wine's desktop, which would keep the caller's
    # pipe open after the program has ended.
    output=$(mktemp)
    code=0
    "$wine" "$@" </dev/null >"$output" 2>&1 || code=$?
    cat "$output"
    rm -f "$output"
    exit "$code"
    ;;
esac
