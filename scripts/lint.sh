#!/usr/bin/env bash
# Judges the sources: lint.sh [--all] [BASE]
#   layout       clang-format on every file
#   names        no two headers share a relative name
#   compilation  every header alone and every product source, by clang, without a warning
#   clang-tidy   the product sources changed since BASE (default: what was committed four hours before HEAD, at least one
#                commit), as many as fit into two minutes, the most changed first: told; with --all every source, tests too: a failure
source "$(dirname "${BASH_SOURCE[0]}")/step.sh"

all= base=
for word in "$@"; do
    case $word in
    --all) all=yes ;;
    -*) echo "usage: lint.sh [--all] [BASE]" >&2; exit 64 ;;
    *) base=$word ;;
    esac
done
build=build/lint

sources() { git ls-files "$@" | grep -E '\.(c|cpp|h)$'; }

layout() { sources | xargs clang-format --dry-run --Werror; }

# A header's relative name is its path behind the folder that gives its layer the name.
names() {
    local twice
    twice=$(sources '*.h' | sed -E 's#^(module|host)/##' | sort | uniq -d)
    [[ -z $twice ]] || { echo "headers that share a relative name: $twice"; return 1; }
}

# The sources that are compiled on this system.
every_source() {
    grep -o '"file": "[^"]*"' $build/compile_commands.json | sed -E "s#.*\"$PWD/(.*)\"#\1#" | grep '\.cpp$' |
        grep -v '^build/' | sort -u
}

# The changed ones, most changed lines first.
changed() {
    [[ -n $base ]] || base=$(git rev-list -1 --before="$(($(git log -1 --format=%ct) - 14400))" HEAD)
    [[ -n $base ]] || base=$(git hash-object -t tree /dev/null)
    git diff --numstat --no-renames "$base" HEAD -- {border,module,host,oxcheck}/'*.cpp' | sort -rn | cut -f3 | grep -xF -f <(every_source) || true
}

# Past the deadline nothing more begins.
tidy_one() {
    (($(date +%s) < deadline)) || return 0
    clang-tidy --quiet -p "$build" "$1" 2>/dev/null | grep -E -A3 'warning:|error:' && return 1
    echo "$1" >>"$clean"
}
export -f tidy_one

tidy() {
    local files code=0
    files=$(if [[ -n $all ]]; then every_source; else changed; fi)
    [[ -n $files ]] || { echo "clang-tidy: no source changed" >$build/tidy.log; return 0; }
    export build clean deadline=$(($(date +%s) + ${all:+7000} + 120))
    clean=$(mktemp)
    xargs -P "$(nproc)" -n 1 bash -c 'tidy_one "$0"' <<<"$files" | tee $build/tidy.log || code=1
    echo "clang-tidy: $(wc -l <"$clean") of $(wc -l <<<"$files") sources looked at and clean" >>$build/tidy.log
    rm -f "$clean"
    # Of a change they are told; of everything they are a failure.
    [[ -n $all ]] || code=0
    return $code
}

step "Layout of the sources" layout
step "Names of headers" names
step "Configuring $build" cmake --preset lint -DOX_DESKTOP=ON -DBUILD_TESTING=ON
step "Compiling with clang, each header alone" cmake --build --preset lint --parallel "$(nproc)" \
    --target "$([[ -n $all ]] && echo all || echo product)"
step "clang-tidy" tidy
cat $build/tidy.log
