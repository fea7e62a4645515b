#!/usr/bin/env bash
# Puts the licence texts of every library in the Windows packages into FOLDER: the copyright files of Debian's packages of
# the same libraries, and the common licences that they refer to.
set -euo pipefail
folder=$1
declare -A packages=([Qt]=libqt6core6 [QtImageFormats]=qt6-image-formats-plugins [OpenCV]=libopencv-core406
    [libjpeg-turbo]=libjpeg62-turbo [libpng]=libpng16-16 [libtiff]=libtiff6 [libwebp]=libwebp7 [TagLib]=libtag1v5
    [MediaInfo]=libmediainfo0v5 [ZenLib]=libzen0v5 [libexif]=libexif12 [LibRaw]=libraw20 [zlib]=zlib1g
    [BLAKE3]=librust-blake3-dev [GCC]=libstdc++6 [MinGW-w64]=mingw-w64-common)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for library in "${!packages[@]}"; do
    package=${packages[$library]}
    copyright=/usr/share/doc/$package/copyright
    if [ ! -f "$copyright" ]; then
        (cd "$work" && apt-get download -q "$package" >/dev/null && dpkg-deb -x "$package"_*.deb "$package")
        copyright=$(find "$work/$package/usr/share/doc" -name copyright | head -1)
    fi
    cp "$copyright" "$folder/$library.txt"
done
for licence in Apache-2.0 BSD GPL-3 LGPL-2.1 LGPL-3 MPL-2.0; do
    cp "/usr/share/common-licenses/$licence" "$folder/$licence.txt"
done
