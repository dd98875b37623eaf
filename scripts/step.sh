# Sourced by the scripts: runs from the root of the checkout, one line for each step.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# step CAPTION COMMAND...: the command's output is shown only when it fails.
step() {
    local caption=$1 log begin=$SECONDS
    shift
    log=$(mktemp)
    printf '%s ... ' "$caption"
    if "$@" >"$log" 2>&1; then
        printf 'done (%d s)\n' $((SECONDS - begin))
        rm -f "$log"
    else
        local code=$?
        printf 'FAILED (%d)\n' "$code"
        tail -n 200 "$log" >&2
        rm -f "$log"
        exit "$code"
    fi
}
