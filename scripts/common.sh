# shellcheck shell=bash
# Shared by the scripts beside this file, which source it.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf '%s\n' "$*" >&2; }

die() {
    say "$(basename "$0"): $*"
    exit 1
}

# build PRESET [CMAKE-BUILD-ARGUMENT]...: configures and builds in build/PRESET.
build() {
    local preset=$1 launcher=()
    shift
    if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
    (
        cd "$root" &&
            cmake --log-level=WARNING --preset "$preset" "${launcher[@]}" >/dev/null &&
            cmake --build --preset "$preset" --parallel "$(nproc)" "$@"
    )
}
