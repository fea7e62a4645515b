#!/usr/bin/env bash
# Installs what building needs on Debian and its derivatives; asks for root only when something is missing.
#   install-deps.sh                  what the Linux program and its tests need
#   install-deps.sh --windows        also what the cross-built Windows program and its tests need
#   install-deps.sh --sdk            also what builds the libraries for Windows (packaging/windows/build-sdk.sh)
#   install-deps.sh --packages       also what makes the Windows packages
#   install-deps.sh --screenshots    also what takes pictures of the window
#   install-deps.sh --tsan           also what builds Qt with the thread sanitizer (scripts/build-qt-tsan.sh)
#   install-deps.sh --e2e            also what the tests of the Windows packages need
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
packages=(build-essential cmake ninja-build ccache python3 clang-format
    qt6-base-dev qt6-base-dev-tools qt6-l10n-tools librsvg2-bin libssl-dev openssl strace
    libopencv-core-dev libopencv-imgproc-dev libopencv-imgcodecs-dev libtag1-dev libexif-dev libraw-dev libmediainfo0v5)
windows=
for option in "$@"; do
    case $option in
    --windows)
        windows=yes
        packages+=(g++-mingw-w64-x86-64-posix wine wine64 xvfb xauth libz-mingw-w64-dev libz-mingw-w64 xz-utils)
        ;;
    --sdk) packages+=(dpkg-dev autoconf automake libtool gettext autopoint nasm libutfcpp-dev) ;;
    --tsan) packages+=(dpkg-dev libfontconfig-dev libfreetype-dev libicu-dev libjpeg-dev libpng-dev zlib1g-dev) ;;
    --packages) packages+=(nsis qt6-translations-l10n) ;;
    --screenshots) packages+=(xvfb xauth fonts-noto-cjk fonts-noto-color-emoji fonts-dejavu-core) ;;
    --e2e) packages+=(xvfb xdotool imagemagick tesseract-ocr tesseract-ocr-eng fonts-noto-cjk fonts-dejavu-core) ;;
    *)
        echo "install-deps.sh: unknown option $option" >&2
        exit 2
        ;;
    esac
done

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

if ! command -v apt-get >/dev/null; then
    echo "No apt-get here: please install by hand what corresponds to: ${packages[*]} and the BLAKE3 C library." >&2
    exit 0
fi

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$' || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing ${missing[*]}"
    as_root apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
fi

# Debian 12 has no package of the BLAKE3 C library, but its sources lie in the package of the Rust one. That package is
# only unpacked: installing it would pull in a Rust tool chain.
blake3=$root/.deps/blake3
if [ -z "$(find "$blake3" -name blake3_impl.h 2>/dev/null)" ] && ! ldconfig -p | grep -q libblake3; then
    echo "Fetching the BLAKE3 sources"
    mkdir -p "$blake3"
    work=$(mktemp -d)
    trap 'rm -rf "$work"' EXIT
    if ! (cd "$work" && apt-get download -q librust-blake3-dev 2>"$work/errors"); then
        as_root apt-get update -q
        (cd "$work" && apt-get download -q librust-blake3-dev)
    fi
    dpkg-deb -x "$work"/librust-blake3-dev_*.deb "$blake3"
fi

if [ -n "$windows" ] && [ ! -d "${WINDOWS_SDK:-$root/.deps/winsdk}" ]; then
    archive=$root/../shared/windows-sdk/windows-sdk.tar.xz
    if [ -f "$archive" ]; then
        echo "Unpacking the prepared libraries for Windows"
        mkdir -p "$root/.deps"
        tar -C "$root/.deps" -xf "$archive"
    fi
fi
