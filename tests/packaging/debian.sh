#!/usr/bin/env bash
# debian.sh BUILD: makes the Debian package, unpacks it into a fresh root, and works there as its user would.
set -euo pipefail
build=$1
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
fail() { echo "FAILED: $*" >&2; exit 1; }
contains() { grep -q -- "$2" <<<"$1" || fail "no \"$2\" in: $1"; }

cpack --config "$build/CPackConfig.cmake" -B "$root/made" >"$root/log" 2>&1 || fail "cpack: $(tail -5 "$root/log")"
package=$(ls "$root"/made/*.deb)
needs=$(dpkg-deb -f "$package" Depends)
for each in libproj libgdal libsqlite3 proj-data; do contains "$needs" "$each"; done
dpkg-deb -x "$package" "$root/system"
cd "$root/system"

programs=(oxhost)
[[ ! -e usr/bin/oxhost-window ]] || programs+=(oxhost-window)
! grep -rlF "$build" . || fail "names the build folder"
for file in usr/lib*/oxhost/{oxhost*,*.so} usr/lib/*/oxhost/{oxhost*,*.so}; do
    [[ -f $file ]] || continue
    ! ldd "$file" | grep -E "not found|$build" || fail "$file: libraries"
done

export HOME=$root/home LC_ALL=C.UTF-8
mkdir "$HOME" && cd "$HOME"
for program in "${programs[@]}"; do "$root/system/usr/bin/$program" --version >/dev/null; done
oxhost=$root/system/usr/bin/oxhost
sample=$(find "$root/system/usr/share/doc" -name '*.geojson' | head -1)
"$oxhost" import p.gpkg "$sample" --quiet
"$oxhost" reproject p.gpkg --to EPSG:32640 --all --yes --quiet --on-error skip || (($? == 1)) || fail "reproject"
contains "$("$oxhost" list p.gpkg)" "+proj=utm +zone=40"
contains "$("$oxhost" catalogue ellipsoids)" "6378245"

cd "$root/system/usr/share"
for page in man/man1 man/ru/man1; do contains "$(cat $page/oxhost.1)" "oxhost reproject"; done
contains "$(cat man/ru/man1/oxhost.1)" "КОМАНДЫ"
if command -v man >/dev/null; then
    warnings=$(man --warnings -E UTF-8 -l man/man1/oxhost.1 2>&1 >/dev/null) || true
    [[ -z $warnings ]] || fail "manual page: $warnings"
fi
completes() {  # completes WORD... : what bash offers for the last one
    COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMPREPLY=()
    _oxhost
    echo "${COMPREPLY[*]}"
}
source bash-completion/completions/oxhost
[[ $(completes oxhost repr) == reproject ]] || fail "completion of commands"
contains "$(completes oxhost reproject --on)" "--on-error"
[[ $(completes oxhost reproject --on-error s) == "stop skip" ]] || fail "completion of values"
if [[ -e applications/oxhost.desktop ]]; then
    ! command -v desktop-file-validate >/dev/null || desktop-file-validate applications/oxhost.desktop
    contains "$(cat mime/packages/oxhost.xml)" "$(sed -n 's/^MimeType=\(.*\);/\1/p' applications/oxhost.desktop)"
    [[ -f icons/hicolor/scalable/apps/$(sed -n 's/^Icon=//p' applications/oxhost.desktop).svg ]] || fail "icon"
fi
echo "$(basename "$package"): $(du -sk "$root/system" | cut -f1) KB installed, works from a fresh root"
