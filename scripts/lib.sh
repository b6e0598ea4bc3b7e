# shellcheck shell=bash disable=SC2034
# What the scripts here share: packages, and a word about what runs. Sourced, with "set -euo pipefail" on.

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$project" || exit

# Qt 6 and QCustomPlot draw, CLI11 and nlohmann-json serve tarnview-cli; a bare machine has no font to draw with.
build_packages=(g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev libqcustomplot-dev libcli11-dev nlohmann-json3-dev
                fonts-dejavu-core)
test_packages=("${build_packages[@]}" libgtest-dev libgmock-dev libbenchmark-dev clang libclang-rt-14-dev clang-format python3)

say() { printf '\n== %s\n' "$*"; }

# Debian's packages that are not there yet, without a question.
install_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    local root=()
    [ "$(id -u)" = 0 ] || root=(sudo)
    say "install ${missing[*]}"
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET [CMAKE OPTION...] [-- TARGET...]
build() {
    local preset=$1 options=() targets=() quiet=()
    shift
    while [ $# -gt 0 ] && [ "$1" != -- ]; do options+=("$1"); shift; done
    [ $# -le 1 ] || targets=(--target "${@:2}")
    [ -t 1 ] || quiet=(-- --quiet)
    say "build $preset"
    cmake --preset "$preset" "${options[@]}" >"build/configure-$preset.log" 2>&1 ||
        { cat "build/configure-$preset.log"; return 1; }
    cmake --build --preset "$preset" "${targets[@]}" "${quiet[@]}"
}

mkdir -p build
