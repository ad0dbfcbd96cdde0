# shellcheck shell=bash disable=SC2034
# The Debian packages each command needs, by purpose. install-packages.sh takes the names of the groups.

# Compiling the program.
packages_build=(
    cmake
    g++
    libasound2-dev
    libgl1-mesa-dev
    libplist-dev
    ninja-build
    pkg-config
    qt6-base-dev
    qt6-declarative-dev
    qt6-sensors-dev
    zlib1g-dev
)

# What the program loads while it runs, and the fonts of its scenes.
packages_run=(
    fonts-dejavu-core
    fonts-inter
    libasound2
    libgl1-mesa-dri
    libqt6sensors6
    libqt6svg6
    qml6-module-qtqml
    qml6-module-qtqml-workerscript
    qml6-module-qtquick
    qml6-module-qtquick-templates
    qml6-module-qtquick-window
)

# Showing the program from a machine without a display: only its one window, without a window manager, whose
# menus would offer more of the machine than the program.
packages_vnc=(
    x11vnc
    xauth
    xvfb
)

# Making the Debian package, with its icon in all sizes.
packages_package=(
    dpkg-dev
    file
    librsvg2-bin
)

# Trying the package in a system of its own.
packages_chroot=(
    debootstrap
)

# Tests and the checks of the sources.
packages_test=(
    clang-format
    clang-tidy
    libgmock-dev
    libgtest-dev
)

# Benchmarks, with another evaluator of formulas to compare with.
packages_bench=(
    libbenchmark-dev
    libmuparser-dev
)
