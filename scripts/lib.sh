# What the scripts share. Sourced with `set -euo pipefail` in force.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export CCACHE_DIR=${CCACHE_DIR:-${XDG_CACHE_HOME:-${HOME:-/tmp}/.cache}/ccache}

say() { printf '==> %s\n' "$*"; }

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"
    elif command -v sudo >/dev/null; then sudo "$@"
    else echo "Missing packages need to be installed by root, and there is no sudo: $*" >&2; return 1
    fi
}

# need_packages PACKAGE...: installs those that are missing, by apt-get; silent when all are there.
need_packages() {
    local package missing=()
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    say "Installing ${missing[*]}"
    as_root apt-get -qq update
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -qq -y --no-install-recommends "${missing[@]}" >/dev/null
}

build_packages=(g++ cmake ninja-build ccache git ca-certificates qtbase5-dev qttools5-dev-tools libhidapi-dev
    libhidapi-hidraw0 libx11-dev libxtst-dev libwebp-dev librsvg2-bin imagemagick)
run_packages=(libqt5gui5 qt5-image-formats-plugins ffmpeg xdg-utils fonts-liberation fonts-droid-fallback)
display_packages=(xvfb xauth openbox xdotool imagemagick x11-utils)

# configure_and_build PRESET [TARGET...]
configure_and_build() (
    preset=$1; shift
    cd "$root"
    mkdir -p build
    cmake --preset "$preset" >"build/configure-$preset.log" 2>&1 || { cat "build/configure-$preset.log"; exit 1; }
    if [ $# -gt 0 ]; then set -- --target "$@"; fi
    nice cmake --build --preset "$preset" "$@"
)
