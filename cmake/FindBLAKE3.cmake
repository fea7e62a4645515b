# Finds the BLAKE3 reference C library and defines the target BLAKE3::blake3.
#
# A library of the system is taken where there is one. Otherwise the reference sources are built as a static library,
# from BLAKE3_SOURCE_DIR: a folder with blake3.c, blake3.h and the assembly files. Debian ships them inside the package
# librust-blake3-dev; scripts/install-deps.sh unpacks it into .deps/.

find_package(blake3 CONFIG QUIET)
if(TARGET BLAKE3::blake3)
    set(BLAKE3_FOUND TRUE)
    return()
endif()

find_path(BLAKE3_INCLUDE_DIR blake3.h)
find_library(BLAKE3_LIBRARY blake3)
file(GLOB blake3_candidates
    ${PROJECT_SOURCE_DIR}/.deps/blake3/usr/share/cargo/registry/blake3-*/c
    /usr/share/cargo/registry/blake3-*/c)
find_path(BLAKE3_SOURCE_DIR blake3_impl.h HINTS ${blake3_candidates} NO_CMAKE_FIND_ROOT_PATH
    DOC "Folder of the BLAKE3 reference C sources")

include(FindPackageHandleStandardArgs)
if(BLAKE3_LIBRARY AND BLAKE3_INCLUDE_DIR)
    find_package_handle_standard_args(BLAKE3 REQUIRED_VARS BLAKE3_LIBRARY BLAKE3_INCLUDE_DIR)
    add_library(BLAKE3::blake3 UNKNOWN IMPORTED)
    set_target_properties(BLAKE3::blake3 PROPERTIES
        IMPORTED_LOCATION ${BLAKE3_LIBRARY} INTERFACE_INCLUDE_DIRECTORIES ${BLAKE3_INCLUDE_DIR})
    return()
endif()

find_package_handle_standard_args(BLAKE3 REQUIRED_VARS BLAKE3_SOURCE_DIR
    REASON_FAILURE_MESSAGE "run scripts/install-deps.sh, or set BLAKE3_SOURCE_DIR to the reference sources")
if(MSVC)
    enable_language(ASM_MASM)
    set(assembly windows_msvc.asm)
elseif(WIN32)
    enable_language(ASM)
    set(assembly windows_gnu.S)
else()
    enable_language(ASM)
    set(assembly unix.S)
endif()
add_library(blake3 STATIC
    ${BLAKE3_SOURCE_DIR}/blake3.c
    ${BLAKE3_SOURCE_DIR}/blake3_dispatch.c
    ${BLAKE3_SOURCE_DIR}/blake3_portable.c
    ${BLAKE3_SOURCE_DIR}/blake3_sse2_x86-64_${assembly}
    ${BLAKE3_SOURCE_DIR}/blake3_sse41_x86-64_${assembly}
    ${BLAKE3_SOURCE_DIR}/blake3_avx2_x86-64_${assembly}
    ${BLAKE3_SOURCE_DIR}/blake3_avx512_x86-64_${assembly})
target_include_directories(blake3 SYSTEM PUBLIC ${BLAKE3_SOURCE_DIR})
set_target_properties(blake3 PROPERTIES POSITION_INDEPENDENT_CODE ON AUTOMOC OFF)
if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug" OR MSVC)
    target_compile_options(blake3 PRIVATE $<$<COMPILE_LANGUAGE:C>:$<IF:$<BOOL:${MSVC}>,/O2,-O3>>)
endif()
add_library(BLAKE3::blake3 ALIAS blake3)
