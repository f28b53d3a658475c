# Fails when a test program stands in PROGRAMS that ctest would not run, or when a source below TESTS belongs to none.

cmake_minimum_required(VERSION 3.25)

execute_process(
    COMMAND "${CTEST}" --show-only=json-v1
    WORKING_DIRECTORY "${BINARY_DIR}"
    OUTPUT_VARIABLE list_json
    COMMAND_ERROR_IS_FATAL ANY)
set(listed "")
string(JSON count LENGTH "${list_json}" tests)
math(EXPR last "${count} - 1")
foreach(i RANGE ${last})
    string(JSON name GET "${list_json}" tests ${i} name)
    list(APPEND listed "${name}")
endforeach()

set(faults "")

file(GLOB programs RELATIVE "${PROGRAMS}" "${PROGRAMS}/test_*")
foreach(program IN LISTS programs)
    if(NOT program IN_LIST listed)
        list(APPEND faults "${PROGRAMS}/${program} exists and is not in the test list")
    endif()
endforeach()

file(GLOB_RECURSE sources RELATIVE "${TESTS}" "${TESTS}/*.cpp")
list(FILTER sources EXCLUDE REGEX "^outside/")
foreach(source IN LISTS sources)
    get_filename_component(folder "${source}" DIRECTORY)
    string(REGEX REPLACE "(\\.m)?/(src|ProtectedInterfaces)$" "" short "${folder}")
    get_filename_component(name "${short}" NAME)
    if(NOT test_${name} IN_LIST listed)
        list(APPEND faults "${TESTS}/${source} belongs to no test in the test list (expected test_${name})")
    endif()
endforeach()

if(faults)
    list(JOIN faults "\n  " text)
    message(FATAL_ERROR "The test list is not complete:\n  ${text}")
endif()
