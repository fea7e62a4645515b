#!/usr/bin/env bash
# Makes the prefix with Qt and the other libraries for Windows, from the source packages of this Debian release, whose
# signatures and checksums apt checks.
#   build-sdk.sh [PREFIX [LIBRARY...]]    default: .deps/winsdk, all libraries
# What is built already is left alone: it can be stopped and started again. Sources and build folders lie in $SDK_WORK
# (default: build/winsdk, some 6 GB). Needs about an hour on two cores; Qt and OpenCV are most of it. Changes nothing in
# the system, but needs what scripts/install-deps.sh --windows --sdk installs.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
prefix=$(realpath -m "${1:-$root/.deps/winsdk}")
work=$(realpath -m "${SDK_WORK:-$root/build/winsdk}")
jobs=$(nproc)
host=x86_64-w64-mingw32
source "$root/scripts/debian-sources.sh"
libraries=(zlib libjpeg libpng libwebp libtiff taglib zenlib mediainfo libexif libraw opencv qtbase qtimageformats runtime)

## Ways to build

# with_cmake NAME SOURCE OPTION...
with_cmake() {
    local name=$1 source=$2
    shift 2
    [ -d "$source" ] # else there was nothing to unpack
    cmake -S "$source" -B "$work/build/$name" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw-w64.cmake" \
        -DWINDOWS_SDK="$prefix" -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=ON -DCMAKE_INSTALL_PREFIX="$prefix" "$@"
    cmake --build "$work/build/$name" -j "$jobs"
    cmake --install "$work/build/$name"
}

# with_autotools SOURCE OPTION...: libtool makes a DLL only when the link options say that nothing stays undefined.
with_autotools() {
    cd "${1:?nothing to unpack}"
    shift
    autoreconf -fi
    ./configure --host=$host --prefix="$prefix" --disable-static CC=$host-gcc-posix CXX=$host-g++-posix \
        CPPFLAGS="-I$prefix/include" LDFLAGS="-L$prefix/lib" "$@"
    make -j "$jobs" LDFLAGS="-L$prefix/lib -no-undefined"
    make install LDFLAGS="-L$prefix/lib -no-undefined"
}

## Libraries, in the order in which they need each other

# Debian's package lacks the makefile for Windows.
build_zlib() {
    local source
    source=$(source_of zlib)
    cd "$source"
    $host-gcc-posix -O3 -shared -o zlib1.dll ./*.c -Wl,--out-implib,libz.dll.a
    install -Dt "$prefix/bin" zlib1.dll
    install -Dm644 -t "$prefix/lib" libz.dll.a
    install -Dm644 -t "$prefix/include" zlib.h zconf.h
}

build_libjpeg() {
    with_cmake libjpeg "$(source_of libjpeg-turbo)" -DWITH_TURBOJPEG=OFF -DENABLE_STATIC=OFF
}

build_libpng() {
    with_cmake libpng "$(source_of libpng1.6)" -DPNG_TESTS=OFF -DPNG_STATIC=OFF
}

build_libwebp() {
    local off=() program
    for program in ANIM_UTILS CWEBP DWEBP GIF2WEBP IMG2WEBP VWEBP WEBPINFO WEBPMUX EXTRAS; do
        off+=("-DWEBP_BUILD_$program=OFF")
    done
    with_cmake libwebp "$(source_of libwebp)" "${off[@]}"
}

build_libtiff() {
    local off=() part
    for part in tiff-tools tiff-tests tiff-contrib tiff-docs lzma zstd jbig lerc webp libdeflate; do
        off+=("-D$part=OFF")
    done
    with_cmake libtiff "$(source_of tiff)" "${off[@]}"
}

build_taglib() {
    # Debian keeps this header-only library in a package of its own.
    with_cmake taglib "$(source_of taglib)" -DCMAKE_CXX_FLAGS=-I/usr/include/utf8cpp
}

build_zenlib() {
    with_cmake zenlib "$(source_of libzen)/Project/CMake" -DBUILD_SHARED_LIBS=OFF
}

build_mediainfo() {
    local source
    source=$(source_of libmediainfo)
    # Numbers with a leading zero are octal to the linker.
    sed -i -E 's/@0+([0-9])/@\1/' "$source/Source/MediaInfoDLL/MediaInfoDLL.def"
    with_cmake mediainfo "$source/Project/CMake" -DBUILD_ZLIB=OFF -DBUILD_ZENLIB=OFF
}

build_libexif() {
    (with_autotools "$(source_of libexif)" --disable-docs)
}

build_libraw() {
    (with_autotools "$(source_of libraw)" --disable-openmp --disable-lcms --disable-jasper --disable-examples --enable-jpeg \
        LIBS=-lws2_32)
}

build_opencv() {
    local off=() part
    for part in TESTS PERF_TESTS opencv_apps JAVA opencv_python2 opencv_python3 ZLIB JPEG PNG TIFF WEBP; do
        off+=("-DBUILD_$part=OFF")
    done
    for part in IPP ITT OPENCL OPENEXR OPENJPEG JASPER FFMPEG GSTREAMER PROTOBUF QUIRC ADE DIRECTX WIN32UI MSMF DSHOW EIGEN \
        LAPACK VTK; do
        off+=("-DWITH_$part=OFF")
    done
    with_cmake opencv "$(source_of opencv)" -DBUILD_LIST=core,imgproc,imgcodecs "${off[@]}" \
        -DCPU_BASELINE=SSE3 -DCPU_DISPATCH=SSE4_1,SSE4_2,AVX,AVX2
}

build_qtbase() {
    local source off=() feature
    source=$(source_of qt6-base)
    sed -i '/isSoftwareGl()/,/^}/ s/#if QT_CONFIG(dynamicgl)/#if QT_CONFIG(dynamicgl) \&\& !defined(QT_NO_OPENGL)/' \
        "$source/src/plugins/platforms/windows/qwindowswindow.cpp"
    for feature in network sql dbus printsupport opengl vulkan xml tabletevent pkg_config glib icu system_zlib system_png \
        system_jpeg system_harfbuzz system_freetype system_pcre2 system_doubleconversion; do
        off+=("-DFEATURE_$feature=OFF")
    done
    with_cmake qtbase "$source" "${off[@]}" -DCMAKE_INSTALL_PREFIX="$prefix/qt" -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF
}

build_qtimageformats() {
    local webp=$prefix/share/WebP source
    source=$(source_of qt6-imageformats)
    # Its CMake package asks for threads in a way that Qt's configuration stumbles over.
    if [ -d "$webp" ]; then
        mv "$webp" "$webp.away"
    fi
    with_cmake qtimageformats "$source" -DCMAKE_INSTALL_PREFIX="$prefix/qt" -DFEATURE_mng=OFF -DFEATURE_jasper=OFF
    if [ -d "$webp.away" ]; then
        mv "$webp.away" "$webp"
    fi
}

build_runtime() {
    local name
    for name in libstdc++-6.dll libgcc_s_seh-1.dll; do
        cp "$($host-g++-posix -print-file-name=$name)" "$prefix/bin"
    done
    find "$prefix" -name '*.dll' -exec $host-strip --strip-unneeded {} +
}

## All of it

[ $# -gt 1 ] && libraries=("${@:2}")
mkdir -p "$work/done" "$prefix"
prepare_apt
for library in "${libraries[@]}"; do
    if [ ! -e "$work/done/$library" ]; then
        echo "$(date +%T) $library"
        start=$SECONDS
        set +e # else nothing in the subshell would end at a failure
        (
            set -e
            build_"$library"
        ) >"$work/$library.log" 2>&1
        status=$?
        set -e
        if [ $status != 0 ]; then
            tail -30 "$work/$library.log"
            echo "$library failed; the whole story is in $work/$library.log" >&2
            exit 1
        fi
        touch "$work/done/$library"
        echo "$(date +%T) $library is built in $((SECONDS - start)) s"
    fi
done
