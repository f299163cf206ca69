# shellcheck shell=bash
# What the scripts of this tree share. Source it from the tree's top folder.

say() {
    printf '== %s\n' "$*"
}

die() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# build PRESET [TARGET...]: configures and builds a preset, by default all of it.
build() {
    local preset=$1 targets=()
    shift
    [ $# -eq 0 ] || targets=(--target "$@")
    cmake --preset "$preset"
    cmake --build --preset "$preset" --parallel "$(nproc)" "${targets[@]}"
}

# our_files PATTERN...: the files of this tree with such names, one per line, generated ones left out.
our_files() {
    local names=() pattern
    for pattern in "$@"; do
        names+=(-o -name "$pattern")
    done
    find . \( -path ./build -o -path ./.git \) -prune -o \
        -type f \( "${names[@]:1}" \) -printf '%P\n' | LC_ALL=C sort
}
