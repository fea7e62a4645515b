#!/usr/bin/env bash
# Puts the licence texts of every library in the Windows packages into FOLDER: the copyright files of Debian's packages of
# the same libraries, and the common licences that they refer to.
set -euo pipefail
folder=$1
packages=(libqt6core6 libopencv-core406 libjpeg62-turbo libpng16-16 libtiff6 libwebp7 libtag1v5 libmediainfo0v5 libzen0v5
    libexif12 libraw20 zlib1g librust-blake3-dev libstdc++6 mingw-w64-common)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for package in "${packages[@]}"; do
    copyright=/usr/share/doc/$package/copyright
    if [ ! -f "$copyright" ]; then
        (cd "$work" && apt-get download -q "$package" >/dev/null && dpkg-deb -x "$package"_*.deb "$package")
        copyright=$(find "$work/$package/usr/share/doc" -name copyright | head -1)
    fi
    cp "$copyright" "$folder/${package%%[0-9]*}.txt"
done
for licence in Apache-2.0 BSD GPL-3 LGPL-2.1 LGPL-3 MPL-2.0; do
    cp "/usr/share/common-licenses/$licence" "$folder/$licence.txt"
done
