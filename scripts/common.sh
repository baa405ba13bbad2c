# SPDX-License-Identifier: MIT
# Shared by the scripts in this folder, which source it. Sets `root`, the project's folder.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Qt needs a UTF-8 locale for the widgets' Chinese texts.
export LC_ALL=${LC_ALL:-C.UTF-8}

common_build_packages=(
    cmake g++ make ninja-build pkg-config
    libxcb1-dev libxcb-xkb-dev libxkbcommon-dev libxkbcommon-x11-dev
    fonts-font-awesome fonts-wqy-zenhei fonts-dejavu-core
)
qt5_build_packages=(qtbase5-dev qt5-qmake)
qt6_build_packages=(qt6-base-dev qmake6)
bench_packages=(libbenchmark-dev python3 python3-matplotlib valgrind)
docs_packages=(doxygen qttools5-dev-tools)
display_packages=(xvfb openbox x11-utils)
# what scripts/pictures needs besides
picture_packages=(optipng xdotool imagemagick picom hsetroot)
common_test_packages=(
    "${display_packages[@]}" "${docs_packages[@]}"
    weston xwayland xdotool x11-xkb-utils x11-xserver-utils wmctrl
    libxcb-keysyms1-dev libxcb-xtest0-dev
    at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi
    dpkg-dev abigail-tools xz-utils python3
)
qt5_designer_packages=(qttools5-dev)
# CMake's package of Designer looks for that of OpenGL, on which Debian's does not depend.
qt6_designer_packages=(qt6-tools-dev libqt6opengl6-dev)
qt5_test_packages=(
    "${qt5_designer_packages[@]}"
    qtwayland5 qtbase5-private-dev libqt5sql5-sqlite libqt5svg5-dev kde-style-breeze qt5-style-kvantum
)
qt6_test_packages=(
    "${qt6_designer_packages[@]}"
    qt6-wayland qt6-base-private-dev libqt6sql6-sqlite libqt6svg6-dev
)
# Most tests wait more than they compute.
test_jobs=$((2 * $(nproc)))

# what makes Debian packages; debian/control says what these are built with
package_packages=(debhelper dpkg-dev git lintian xz-utils)
# what tries them in an empty Debian, and checks what distributors look at
package_test_packages=(autopkgtest debootstrap reuse)

# What scripts/python needs besides. Shiboken reads the headers with Clang 14, and takes its own from this
# package.
python_packages=(
    "${display_packages[@]}"
    libpyside2-dev libshiboken2-dev libclang-common-14-dev mypy
    python3-pyside2.qtwidgets python3-pyside2.qttest python3-pyside2.qtsql libqt5sql5-sqlite
)

# the version of libclang-rt is the one of Debian 12's package "clang"
fuzz_packages=(clang libclang-rt-14-dev)

# use_qt 5|6: sets what is installed and built to those of that version of Qt: `build_packages`,
# `test_packages`, and `qt_preset`, which the names of its presets begin with.
use_qt() {
    case $1 in
    5)
        build_packages=("${common_build_packages[@]}" "${qt5_build_packages[@]}")
        test_packages=("${common_test_packages[@]}" "${qt5_test_packages[@]}")
        qt_preset=
        ;;
    6)
        build_packages=("${common_build_packages[@]}" "${qt6_build_packages[@]}")
        test_packages=("${common_test_packages[@]}" "${qt6_test_packages[@]}")
        qt_preset=qt6-
        ;;
    *) fail "--qt takes 5 or 6, not $1" ;;
    esac
}

# use_qt_of PRESET: uses the Qt that the preset builds with.
use_qt_of() {
    case $1 in
    qt6*) use_qt 6 ;;
    *) use_qt 5 ;;
    esac
}

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# project_version: as CMakeLists.txt has it.
project_version() {
    sed -n 's/^ *VERSION \([0-9.]*\)$/\1/p' "$root/CMakeLists.txt" | grep . ||
        fail "CMakeLists.txt names no version"
}

# install_packages PACKAGE...: installs those of the Debian packages that are missing.
install_packages() {
    local package missing=()
    for package in "$@"; do
        if ! dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed; then
            missing+=("$package")
        fi
    done
    [ ${#missing[@]} -eq 0 ] && return
    printf 'Installing: %s\n' "${missing[*]}"
    run_apt install "${missing[@]}"
}

# install_build_dependencies [-PPROFILE]: what the debian/control of the current folder asks for and is
# missing.
install_build_dependencies() {
    dpkg-checkbuilddeps "$@" 2>/dev/null || run_apt build-dep "$@" ./
}

# run_apt COMMAND ARGUMENT...: apt-get as root.
run_apt() {
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            fail "Debian packages are missing, and installing them takes root or sudo:
    apt-get $*"
        as_root=(sudo)
    fi
    # an outdated package list names versions that the archive no longer has
    "${as_root[@]}" apt-get update -q || fail "apt-get update failed; needed: $*"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get "$1" -q -y --no-install-recommends "${@:2}" ||
        fail "apt-get could not $*"
}

# build_preset PRESET: configures and builds build/PRESET.
build_preset() {
    (cd "$root" && cmake --preset "$1" && cmake --build --preset "$1") ||
        fail "the build failed (preset $1)"
}

use_qt 5
