# Compile options that hold for everything in the tree.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# What is exported says so with OVR_EXPORT. Inline members of an exported class stay visible with it: the statics of
# the singleton templates must be one object in the whole process.
set(CMAKE_CXX_VISIBILITY_PRESET hidden)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "" FORCE)
endif()

add_compile_options(-Wall -Wextra -Wpedantic)
if(OVR_WERROR)
    add_compile_options(-Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fno-semantic-interposition)
endif()

add_link_options(-Wl,--as-needed)
if(OVR_SANITIZE)
    add_compile_options(-fsanitize=${OVR_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${OVR_SANITIZE})
endif()
# clang leaves the sanitizer's own symbols to the program, so there a library cannot be closed.
if(NOT (OVR_SANITIZE AND CMAKE_CXX_COMPILER_ID MATCHES "Clang"))
    string(APPEND CMAKE_SHARED_LINKER_FLAGS " -Wl,--no-undefined")
endif()

find_program(OVR_CCACHE ccache)
mark_as_advanced(OVR_CCACHE)
if(OVR_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Without this a source that uses a precompiled header is never found in the cache.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${OVR_CCACHE}")
endif()
