# Installs the build in BINARY_DIR below SCRATCH, then configures, builds and runs the project in SOURCE_DIR against
# what was installed.

cmake_minimum_required(VERSION 3.25)

set(flags "")
if(SANITIZE)
    set(flags "-fsanitize=${SANITIZE}")
endif()

file(REMOVE_RECURSE "${SCRATCH}")
execute_process(
    COMMAND "${CMAKE_COMMAND}" --install "${BINARY_DIR}" --prefix "${SCRATCH}/prefix"
    OUTPUT_QUIET
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND "${CMAKE_COMMAND}" -S "${SOURCE_DIR}" -B "${SCRATCH}/build" -G "${GENERATOR}"
        "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${flags}" "-DCMAKE_PREFIX_PATH=${SCRATCH}/prefix"
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${SCRATCH}/build" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${SCRATCH}/build/outside" COMMAND_ERROR_IS_FATAL ANY)
if(EXISTS "${SCRATCH}/prefix/bin/vdbattr")
    execute_process(COMMAND "${SCRATCH}/prefix/bin/vdbattr" --help OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endif()
