# What the scripts share; sourced, with `set -euo pipefail` in force. Everything runs in the tree's root.

cd "$(dirname "${BASH_SOURCE[0]}")/.."

say() { printf '\n== %s\n' "$*"; }

# Runs a command. On a terminal its output is shown; elsewhere it is kept, and shown only if the command fails.
run_quietly() {
    if [ -t 1 ]; then
        "$@"
        return
    fi
    local log
    log=$(mktemp)
    if "$@" >"$log" 2>&1; then
        rm -f "$log"
        return
    fi
    cat "$log"
    rm -f "$log"
    return 1
}

# build_preset PRESET [TARGET...]: configures and builds into build/PRESET.
build_preset() {
    local preset=$1 start=$SECONDS
    shift
    say "Build $preset"
    run_quietly cmake --preset "$preset"
    run_quietly cmake --build "build/$preset" --parallel "$(nproc)" --target "${@:-all}"
    printf 'Built in %d s.\n' $((SECONDS - start))
}
