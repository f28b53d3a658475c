# Rules of the source tree that no compiler checks.

cmake_minimum_required(VERSION 3.25)

set(faults "")

function(forbid why regex)
    foreach(file IN LISTS ARGN)
        file(STRINGS "${file}" lines REGEX "${regex}")
        if(lines)
            list(APPEND faults "${file}: ${why}: ${lines}")
        endif()
    endforeach()
    set(faults "${faults}" PARENT_SCOPE)
endfunction()

set(library_folders command containers entry frame repository upgrade host QRTOvuOvarisUtilities QRTRom QRTVdb)
set(sources "")
foreach(folder IN LISTS library_folders)
    file(GLOB_RECURSE found "${SOURCE_DIR}/${folder}/*.h" "${SOURCE_DIR}/${folder}/*.cpp")
    list(APPEND sources ${found})
endforeach()

set(without_store ${sources})
list(FILTER without_store EXCLUDE REGEX "/host/QRTRfmInterface/")
set(headers ${sources})
list(FILTER headers INCLUDE REGEX "\\.h$")

forbid("only host/QRTRfmInterface knows SQLite" "#include *[<\"]sqlite3" ${without_store})
forbid("streams bring initializers of their own" "#include *<iostream>" ${sources})
forbid("there is one thread, the model's" "#include *<(thread|mutex|atomic|shared_mutex|condition_variable)>" ${sources})
forbid("a header is included by its plain name" "#include *\"[^\"]*/" ${sources})

foreach(header IN LISTS headers)
    file(STRINGS "${header}" guard REGEX "^#pragma once$")
    if(NOT guard)
        list(APPEND faults "${header}: `#pragma once` is missing")
    endif()
endforeach()

if(faults)
    list(JOIN faults "\n  " text)
    message(FATAL_ERROR "Rules of the source tree are broken:\n  ${text}")
endif()
