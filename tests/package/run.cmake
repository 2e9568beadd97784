# SPDX-FileCopyrightText: 2026 the VySmil authors
# SPDX-License-Identifier: MIT

# Run by the test "package" with BUILD_DIR, SOURCE_DIR, WORK_DIR, LIB_DIR, COMPILER and GENERATOR.
cmake_minimum_required(VERSION 3.22)

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")
set(libdir "${prefix}/${LIB_DIR}")
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${SOURCE_DIR} -B ${WORK_DIR}/cmake -D CMAKE_PREFIX_PATH=${prefix}
    -D CMAKE_CXX_COMPILER=${COMPILER})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/cmake)
run(${WORK_DIR}/cmake/consumer)

find_program(pkg_config pkg-config REQUIRED)
set(ENV{PKG_CONFIG_PATH} "${libdir}/pkgconfig")
execute_process(COMMAND ${pkg_config} --cflags --libs vysmil
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
run(${COMPILER} -std=c++17 -fPIC ${SOURCE_DIR}/consumer.cpp -o ${WORK_DIR}/pkg-config-consumer ${flags})
run(${CMAKE_COMMAND} -E env "LD_LIBRARY_PATH=${libdir}" ${WORK_DIR}/pkg-config-consumer)
