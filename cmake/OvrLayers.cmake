# Functions that make targets of the tree's folders.
#
#   ovr_host_library(NAME DEPENDS ... PRIVATE_DEPENDS ...)   host/NAME        -> libOVRNAME.so
#   ovr_header_layer(NAME DIR DEPENDS ...)                   headers alone    -> nothing to link
#   ovr_layer(NAME DIR DEPENDS ...)                          sources of the attribute library
#   ovr_attribute_library(NAME TOP)                          all of the latter -> libNAME.so
#
# For each folder there is an interface target NAME to depend on, which carries the folder as an include directory and
# hands on those of the layers below. Sources are found by pattern and looked for again at each build.

set_property(GLOBAL PROPERTY OVR_LAYERS "")
set_property(GLOBAL PROPERTY OVR_OBJECTS "")

# Notes that target NAME stands for folder DIR, and which of its headers are to be installed where.
function(_ovr_note name dir kind)
    set_property(GLOBAL APPEND PROPERTY OVR_LAYERS ${name})
    set_property(GLOBAL PROPERTY OVR_LAYER_DIR_${name} ${dir})
    set_property(GLOBAL PROPERTY OVR_LAYER_KIND_${name} ${kind})
endfunction()

function(_ovr_include_directory target scope name dir)
    target_include_directories(${target} ${scope}
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/${dir}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/ovr/${name}>)
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
    target_compile_features(${target} ${scope} cxx_std_20)
endfunction()

function(ovr_header_layer name dir)
    cmake_parse_arguments(arg "" "" "DEPENDS" ${ARGN})
    add_library(${name} INTERFACE)
    _ovr_include_directory(${name} INTERFACE ${name} ${dir})
    target_link_libraries(${name} INTERFACE ${arg_DEPENDS})
    _ovr_note(${name} ${dir} header)
endfunction()

function(ovr_host_library name)
    cmake_parse_arguments(arg "" "" "DEPENDS;PRIVATE_DEPENDS" ${ARGN})
    set(dir host/${name})
    file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${dir}/*.cpp")
    if(NOT sources)
        message(STATUS "${dir}: no sources")
        ovr_header_layer(${name} ${dir} DEPENDS ${arg_DEPENDS})
        return()
    endif()
    add_library(${name} SHARED ${sources})
    set_target_properties(${name} PROPERTIES
        OUTPUT_NAME OVR${name}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        INSTALL_RPATH "$ORIGIN")
    _ovr_include_directory(${name} PUBLIC ${name} ${dir})
    target_link_libraries(${name} PUBLIC ${arg_DEPENDS} PRIVATE ${arg_PRIVATE_DEPENDS})
    _ovr_note(${name} ${dir} host)
endfunction()

function(ovr_layer name dir)
    cmake_parse_arguments(arg "" "" "DEPENDS" ${ARGN})
    ovr_header_layer(${name} ${dir} DEPENDS ${arg_DEPENDS})
    set_property(GLOBAL PROPERTY OVR_LAYER_KIND_${name} library)
    file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${dir}/*.cpp")
    if(NOT sources)
        return()
    endif()
    add_library(${name}_objects OBJECT ${sources})
    target_link_libraries(${name}_objects PRIVATE ${name})
    set_property(GLOBAL APPEND PROPERTY OVR_OBJECTS $<TARGET_OBJECTS:${name}_objects>)
endfunction()

function(ovr_attribute_library name top)
    get_property(objects GLOBAL PROPERTY OVR_OBJECTS)
    if(NOT objects)
        message(STATUS "${name}: no sources")
        return()
    endif()
    add_library(${name} SHARED ${objects})
    set_target_properties(${name} PROPERTIES
        LINKER_LANGUAGE CXX
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        INSTALL_RPATH "$ORIGIN")
    target_link_libraries(${name} PUBLIC ${top})
endfunction()

# What to link to use a public class that is declared in folder DIR (relative to the project): the folder's own
# target for the host and the containers, and the whole attribute library for everything above.
function(ovr_target_of_folder dir result)
    get_property(layers GLOBAL PROPERTY OVR_LAYERS)
    foreach(layer IN LISTS layers)
        get_property(layer_dir GLOBAL PROPERTY OVR_LAYER_DIR_${layer})
        get_property(kind GLOBAL PROPERTY OVR_LAYER_KIND_${layer})
        if(layer_dir STREQUAL dir AND NOT kind STREQUAL "library")
            set(${result} ${layer} PARENT_SCOPE)
            return()
        endif()
    endforeach()
    if(TARGET OVRQRTVdbAttrEO2)
        set(${result} OVRQRTVdbAttrEO2 PARENT_SCOPE)
    else()
        set(${result} "" PARENT_SCOPE)
    endif()
endfunction()
