# Run by CTest: installs to a prefix, moves the prefix, builds examples/ against the moved one with CMake and with
# pkg-config and runs the results; then compiles each installed header on its own.

cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

if(QT EQUAL 6)
    set(suffix Qt6)
endif()
set(prefix "${WORK_DIR}/moved prefix")
set(flags "")
if(SANITIZE)
    set(flags "-fsanitize=address,undefined")
endif()

file(REMOVE_RECURSE "${WORK_DIR}")
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/first prefix")
file(RENAME "${WORK_DIR}/first prefix" "${prefix}")

# An application finds the package, links, and runs with the databases beside it.
run("${CMAKE_COMMAND}" -S "${SOURCE_DIR}/examples" -B "${WORK_DIR}/example" -G "${GENERATOR}"
    "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" "-DCMAKE_CXX_FLAGS=${flags}"
    "-DAPPLICATION_QT=${QT}")
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/example")
check_example("${WORK_DIR}/example/devicesBesideMe")

# So does one that asks pkg-config.
file(GLOB_RECURSE pcFile "${prefix}/*.pc")
cmake_path(GET pcFile PARENT_PATH pcDir)
set(ENV{PKG_CONFIG_PATH} "${pcDir}")
run(pkg-config --cflags --libs "kestrovaDevicelore${suffix} >= 1.4")
separate_arguments(pcFlags UNIX_COMMAND "${output}")
separate_arguments(flags UNIX_COMMAND "${flags}")
file(MAKE_DIRECTORY "${WORK_DIR}/pcExample")
run("${CXX_COMPILER}" -std=c++17 ${flags} -o "${WORK_DIR}/pcExample/devicesBesideMe"
    "${SOURCE_DIR}/examples/devicesBesideMe.cpp" ${pcFlags})
cmake_path(GET pcDir PARENT_PATH libraryDir)
set(ENV{LD_LIBRARY_PATH} "${libraryDir}")
check_example("${WORK_DIR}/pcExample/devicesBesideMe")
unset(ENV{LD_LIBRARY_PATH})

# The tools run from the moved prefix. The build with Qt 6 leaves them to that with Qt 5, unless it is asked for them.
file(GLOB tools "${prefix}/bin/*")
list(LENGTH tools count)
if(TOOLS AND NOT count EQUAL 2 OR NOT TOOLS AND NOT count EQUAL 0)
    message(FATAL_ERROR "Expected the two tools, or none, in ${prefix}/bin, found: ${tools}")
endif()
foreach(tool IN LISTS tools)
    run("${tool}" --help)
    get_filename_component(name "${tool}" NAME)
    foreach(document "share/man/man1/${name}.1" "share/bash-completion/completions/${name}")
        if(NOT EXISTS "${prefix}/${document}")
            message(FATAL_ERROR "${document} is not installed.")
        endif()
    endforeach()
endforeach()

# Each header is enough in itself.
file(GLOB_RECURSE headers RELATIVE "${prefix}/include/kestrovaDevicelore${suffix}"
    "${prefix}/include/kestrovaDevicelore${suffix}/*.h")
list(LENGTH headers count)
if(count LESS 20)
    message(FATAL_ERROR "Only ${count} headers are installed.")
endif()
set(headerProject "${WORK_DIR}/headers")
set(text "cmake_minimum_required(VERSION 3.25)\nproject(headers CXX)\nset(CMAKE_CXX_STANDARD 17)\n"
    "find_package(kestrovaDevicelore${suffix} REQUIRED)\nadd_library(headers OBJECT\n")
foreach(header IN LISTS headers)
    string(REGEX REPLACE "[^A-Za-z0-9]" "_" name "${header}")
    file(WRITE "${headerProject}/${name}.cpp" "#include \"${header}\"\n#include \"${header}\"\n")
    list(APPEND text "    ${name}.cpp\n")
endforeach()
list(APPEND text ")\ntarget_compile_options(headers PRIVATE -Wall -Wextra -Wpedantic -Werror)\n"
    "target_link_libraries(headers PRIVATE kestrova::Devicelore${suffix})\n")
list(JOIN text "" text)
file(WRITE "${headerProject}/CMakeLists.txt" "${text}")
run("${CMAKE_COMMAND}" -S "${headerProject}" -B "${headerProject}/build" -G "${GENERATOR}"
    "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}")
run("${CMAKE_COMMAND}" --build "${headerProject}/build")

# No installed file remembers where it was built or first installed. The sanitizers need to, and so do debuggers.
if(NOT SANITIZE AND NOT BUILD_TYPE STREQUAL "Debug")
    set(paths -e "${SOURCE_DIR}" -e "${BUILD_DIR}" -e "${WORK_DIR}")
    if("$ENV{HOME}" MATCHES "^/.")
        list(APPEND paths -e "$ENV{HOME}/")
    endif()
    execute_process(
        COMMAND grep --recursive --files-with-matches --text --fixed-strings ${paths} "${prefix}"
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 1) # which grep says when it finds nothing
        message(FATAL_ERROR "These hold a path of the build machine:\n${output}")
    endif()
endif()
