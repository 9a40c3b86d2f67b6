# Sourced by ./run and ./test: installs what a fresh Debian 12 lacks.

BUILD_PACKAGES="g++ cmake ninja-build ccache qt6-base-dev qt6-serialport-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-documentation-tools libqt6sql6-sqlite libcli11-dev nlohmann-json3-dev libpng-dev fonts-liberation fonts-dejavu-core"
TEST_PACKAGES="libgtest-dev libgmock-dev libbenchmark-dev python3 python3-ezdxf librecad hp2xx socat clang clang-format libclang-rt-14-dev \
    xvfb xauth openbox xdotool x11-utils imagemagick dbus dbus-x11 at-spi2-core python3-pyatspi gir1.2-atspi-2.0 \
    qpdf poppler-utils cups-daemon cups-client cups-filters printer-driver-cups-pdf \
    dpkg-dev file desktop-file-utils appstream shared-mime-info lintian man-db parallel"

say() { printf '==> %s\n' "$*"; }

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# install_missing PACKAGE...: installs those of the packages that are not there.
install_missing() {
    missing=""
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing="$missing $package"
    done
    if [ -z "$missing" ]; then
        say "All needed packages are installed."
        return
    fi
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
        say "These packages are missing, and only root or sudo can install them:$missing"
        exit 1
    fi
    say "Installing with apt-get:$missing"
    as_root apt-get -o DPkg::Lock::Timeout=600 update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=600 install -y -qq \
        --no-install-recommends $missing >/dev/null
}

# build PRESET [OPTION...]: configures and builds one preset. The sources of a room are compiled together, as most of the
# time all of them are to be built.
build() {
    preset=$1
    shift
    say "Building ($preset)"
    cmake --preset "$preset" -DKORVET_ROOMS_TOGETHER=ON "$@" >/dev/null
    cmake --build --preset "$preset" -- --quiet
}
