# orv_add_module(NAME [VERSION a.b.c.d] SOURCES ... [LINK ...])
#
# A module of the family: a shared object NAME.arx in the stage folder with a version
# note, hidden symbols, and the stage folder as its own library path. Used by this tree
# and by plug-ins that are built outside it.

set(ORV_MODULE_CMAKE_DIR "${CMAKE_CURRENT_LIST_DIR}")

function(orv_version_source target version out)
    string(REPLACE "." "," ORV_VERSION_NUMBERS "${version}")
    set(source "${CMAKE_CURRENT_BINARY_DIR}/${target}-version.cpp")
    configure_file("${ORV_MODULE_CMAKE_DIR}/ModuleVersion.cpp.in" "${source}" @ONLY)
    set(${out} "${source}" PARENT_SCOPE)
endfunction()

function(orv_add_module name)
    cmake_parse_arguments(ARG "" "VERSION" "SOURCES;LINK" ${ARGN})
    if(NOT ARG_VERSION)
        set(ARG_VERSION "${ORV_DEFAULT_VERSION}")
    endif()
    orv_version_source(${name} "${ARG_VERSION}" version_source)
    add_library(${name} SHARED ${ARG_SOURCES} ${version_source})
    target_link_libraries(${name} ${ARG_LINK})
    set_target_properties(${name} PROPERTIES
        PREFIX "" SUFFIX ".arx"
        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
        BUILD_RPATH "$ORIGIN" INSTALL_RPATH "$ORIGIN")
    if(ORV_STAGE_DIR)
        set_target_properties(${name} PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${ORV_STAGE_DIR}")
    endif()
endfunction()
