# shellcheck shell=bash
# Sourced by ./run and ./test: packages, configuration and build. Safe to call again, and quick when
# nothing is missing. Needs Debian 12 and, only when packages are missing, root or sudo.

zelvor_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# ccache and Qt want a home; a bare service account may come without the variable.
if [ -z "${HOME:-}" ]; then
    HOME=$(getent passwd "$(id -u)" | cut -d: -f6)
    export HOME
fi

zelvor_packages=(
    cmake ninja-build g++
    qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libsqlite3-dev
    qt6-wayland qt6-translations-l10n
    fonts-dejavu-core fonts-urw-base35 fonts-liberation
    libgtest-dev libbenchmark-dev
    python3 tzdata poppler-utils
    desktop-file-utils appstream shared-mime-info libglib2.0-bin groff-base
)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "These need root, and there is no sudo: $*" >&2
        return 1
    fi
}

# Prints those of the named packages that are not installed.
missing_packages() {
    local package
    for package in "$@"; do
        case $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) in
            installed) ;;
            *) echo "$package" ;;
        esac
    done
}

install_packages() {
    local missing
    mapfile -t missing < <(missing_packages "${zelvor_packages[@]}")
    [ "${#missing[@]}" -eq 0 ] && return 0
    echo "Installing ${missing[*]}" >&2
    as_root apt-get -o DPkg::Lock::Timeout=600 -qq update || return 1
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get -o DPkg::Lock::Timeout=600 -qq install -y --no-install-recommends "${missing[@]}" >&2
}

# configure PRESET: only when the build folder is new or the presets have changed since; Ninja itself
# configures anew when a CMakeLists.txt has changed.
configure() {
    local made="$zelvor_root/build/$1/build.ninja"
    if [ ! -e "$made" ] || [ "$zelvor_root/CMakePresets.json" -nt "$made" ]; then
        (cd "$zelvor_root" && cmake --preset "$1" >&2)
    fi
}

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    configure "$preset" &&
        cmake --build "$zelvor_root/build/$preset" --parallel "$(nproc)" ${1:+--target "$@"} >&2
}
