# Finds what media files are read with and defines a target for each: Media::taglib, Media::exif (libexif) and Media::raw
# (LibRaw, the variant that may be used from several threads).

include(FindPackageHandleStandardArgs)
set(required)

function(mirrix_media_library name header library)
    string(TOUPPER ${name} upper)
    find_path(MEDIA_${upper}_INCLUDE_DIR ${header})
    find_library(MEDIA_${upper}_LIBRARY ${library})
    set(required ${required} MEDIA_${upper}_LIBRARY MEDIA_${upper}_INCLUDE_DIR PARENT_SCOPE)
    if(MEDIA_${upper}_LIBRARY AND NOT TARGET Media::${name})
        add_library(Media::${name} UNKNOWN IMPORTED)
        set_target_properties(Media::${name} PROPERTIES
            IMPORTED_LOCATION "${MEDIA_${upper}_LIBRARY}"
            INTERFACE_INCLUDE_DIRECTORIES "${MEDIA_${upper}_INCLUDE_DIR}")
    endif()
endfunction()

mirrix_media_library(taglib taglib/fileref.h tag)
mirrix_media_library(exif libexif/exif-data.h exif)
mirrix_media_library(raw libraw/libraw.h raw_r)

find_package_handle_standard_args(MediaLibraries REQUIRED_VARS ${required}
    REASON_FAILURE_MESSAGE "run scripts/install-deps.sh")
