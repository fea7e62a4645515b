# What every target of the project shares: warnings, sanitizers, the include root, the compiler cache and the
# precompiled header.

option(MIRRIX_WERROR "Treat compiler warnings as errors" OFF)
set(MIRRIX_SANITIZE "" CACHE STRING "Sanitizers to build with, as the compiler names them (address,undefined or thread)")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Without this sloppiness the cache skips every source that uses a precompiled header.
    set(launcher ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
    set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
endif()

if(MIRRIX_SANITIZE)
    add_compile_options(-fsanitize=${MIRRIX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${MIRRIX_SANITIZE})
endif()

# mirrix_configure(TARGET [PCH_FROM OTHER]): with PCH_FROM, uses another target's precompiled header.
function(mirrix_configure target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "PCH_FROM" "")
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /utf-8 $<$<BOOL:${MIRRIX_WERROR}>:/WX>)
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow
            $<$<BOOL:${MIRRIX_WERROR}>:-Werror>)
    endif()
    if(arg_PCH_FROM)
        target_precompile_headers(${target} REUSE_FROM ${arg_PCH_FROM})
    else()
        target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/pch.h)
    endif()
endfunction()

# Adds the sources of the system built for: NAME_windows.cpp or NAME_posix.cpp of each NAME.
function(mirrix_platform_sources target)
    if(WIN32)
        set(system windows)
    else()
        set(system posix)
    endif()
    foreach(name IN LISTS ARGN)
        target_sources(${target} PRIVATE ${name}_${system}.cpp)
    endforeach()
endfunction()

# Gives a Windows program its manifest, version and, where one is named, icon. Elsewhere does nothing.
function(mirrix_windows_resource target description)
    if(NOT WIN32)
        return()
    endif()
    set(MIRRIX_RC_NAME ${target})
    set(MIRRIX_RC_DESCRIPTION ${description})
    set(MIRRIX_RC_ICON "")
    if(ARGC GREATER 2)
        set(MIRRIX_RC_ICON "1 ICON \"${ARGV2}\"")
    endif()
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/mirrix.rc.in ${script} @ONLY)
    target_sources(${target} PRIVATE ${script})
    set_source_files_properties(${script} PROPERTIES
        OBJECT_DEPENDS "${PROJECT_SOURCE_DIR}/packaging/windows/mirrix.manifest;${ARGV2}")
    if(MSVC)
        target_link_options(${target} PRIVATE /MANIFEST:NO)
    endif()
endfunction()
