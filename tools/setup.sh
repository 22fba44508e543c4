# Sourced by ./run and ./check: says what it does, installs what is missing, stops with one clear line.

say() { printf '== %s\n' "$*"; }
fail() {
    printf 'tonebench: %s\n' "$*" >&2
    exit 1
}

# What building the program needs.
build_packages=(
    g++ cmake ninja-build pkg-config
    qt6-base-dev qt6-svg-dev libfreetype-dev
    librtmidi-dev libasound2-dev libjack-jackd2-dev
    python3 python3-fonttools
    fonts-roboto-unhinted fonts-dejavu-core
)

# What building and running every test needs besides.
test_packages=(
    libgtest-dev libbenchmark-dev
    clang clang-format clang-tidy libclang-rt-14-dev
    jackd2 xvfb xauth xdotool imagemagick
    python3-mido python3-rtmidi
    appstream desktop-file-utils
)

# What the portable archive needs besides the build: what it carries, and what puts it together.
archive_packages=(qt6-wayland patchelf xz-utils python3-markdown)

# Installs those of the named packages that are missing.
install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    if [ ${#missing[@]} -eq 0 ]; then
        say "all Debian packages are there"
        return
    fi
    command -v apt-get >/dev/null || fail "these packages are missing and there is no apt-get: ${missing[*]}"
    local root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "run this as root, or install sudo; missing: ${missing[*]}"
        root=(sudo)
    fi
    say "installing ${missing[*]}"
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q ||
        fail "apt-get update failed; is the network there?"
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}" ||
        fail "apt-get could not install: ${missing[*]}"
}

# Configures and builds a preset.
build() {
    local preset=$1
    shift
    say "configuring ($preset)"
    local told
    told=$(cmake --preset "$preset" 2>&1) || {
        printf '%s\n' "$told" >&2
        fail "the build could not be configured"
    }
    say "building ($preset)"
    cmake --build --preset "$preset" "$@" || fail "the build failed"
}
