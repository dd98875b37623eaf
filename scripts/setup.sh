#!/usr/bin/env bash
# Installs what is missing for building, on Debian 12; with --window for building the window too, with --tests for
# testing everything.
source "$(dirname "${BASH_SOURCE[0]}")/step.sh"

packages=(
    build-essential cmake ninja-build pkg-config
    libproj-dev proj-bin proj-data libsqlite3-dev libgdal-dev gdal-bin libcli11-dev nlohmann-json3-dev
)
window_packages=(qt6-base-dev libqt6svg6 qt6-translations-l10n libgl-dev fonts-dejavu-core)
test_packages=(
    clang clang-format clang-tidy git libgtest-dev libgmock-dev googletest locales desktop-file-utils man-db
    g++-mingw-w64-x86-64 wine64
)
test_locales=("ru_RU UTF-8" "ru_RU CP1251" "de_DE UTF-8")

tests=
case "$*" in
"") ;;
--window) packages+=("${window_packages[@]}") ;;
--tests) tests=yes packages+=("${window_packages[@]}" "${test_packages[@]}") ;;
*) echo "usage: setup.sh [--window | --tests]" >&2; exit 64 ;;
esac

as_root() { if ((EUID == 0)); then "$@"; else sudo "$@"; fi; }
installed() { dpkg -s "$1" 2>/dev/null | grep -q '^Status: install ok installed'; }
has_locale() { [[ $(LC_ALL=$1 locale charmap 2>/dev/null) == "$2" ]]; }
install_packages() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "$@"
}

missing=()
for package in "${packages[@]}"; do installed "$package" || missing+=("$package"); done
if ((${#missing[@]})); then
    step "Package lists" as_root apt-get update -qq
    step "Installing ${missing[*]}" install_packages "${missing[@]}"
else
    echo "Packages: all here"
fi

[[ -z $tests ]] || for entry in "${test_locales[@]}"; do
    read -r language charset <<<"$entry"
    has_locale "$language.$charset" "$charset" ||
        step "Locale $language.$charset" as_root localedef -i "$language" -f "$charset" "$language.$charset"
done
