#!/usr/bin/env bash
# Builds Qt from Debian's source package with the thread sanitizer, into .deps/qt-tsan, where the preset tsan looks for it:
# of a Qt that is not built so, the sanitizer cannot see how it hands work from thread to thread, and reports that instead
# of races. Takes a quarter of an hour on two cores and 3 GB in $TMPDIR; changes nothing in the system.
#   build-qt-tsan.sh && cmake --preset tsan && cmake --build --preset tsan && ctest --preset tsan
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
prefix=$root/.deps/qt-tsan
"$root/scripts/install-deps.sh" --tsan
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
source "$root/scripts/debian-sources.sh"

prepare_apt
sources=$(source_of qt6-base)
# Without forkfd_pidfd processes are started by fork instead of vfork, whose child would write into the sanitizer's notes
# on its parent.
features=()
for unneeded in network sql dbus xml opengl vulkan egl printsupport glib xcb eglfs linuxfb vnc evdev libinput tslib \
    libudev gtk3 forkfd_pidfd; do
    features+=("-DFEATURE_$unneeded=OFF")
done
# Its tools run as they are installed: they are of the same version.
cmake -S "$sources" -B "$work/build" -G Ninja -DCMAKE_INSTALL_PREFIX="$prefix" \
    -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O1 -g1" -DCMAKE_C_FLAGS_RELWITHDEBINFO="-O1 -g1" \
    -DECM_ENABLE_SANITIZERS=thread -DFEATURE_sanitizer=ON -DFEATURE_sanitize_thread=ON \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(gcc -print-multiarch)/cmake" -DQT_FORCE_FIND_TOOLS=ON \
    -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF "${features[@]}"
cmake --build "$work/build"
rm -rf "$prefix"
cmake --install "$work/build" >/dev/null
echo "Qt with the thread sanitizer is in $prefix"
