# Run by CTest: installs to a prefix, moves the prefix, builds examples/ against the moved one and runs the result;
# then compiles each installed header on its own.

cmake_minimum_required(VERSION 3.25)

function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGV " " commandLine)
        message(FATAL_ERROR "${commandLine}\nended with ${result}:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

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
    "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" "-DCMAKE_CXX_FLAGS=${flags}")
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/example")
file(GLOB databases "${BUILD_DIR}/bin/*.db3")
if(NOT databases)
    message(FATAL_ERROR "There are no sample databases in ${BUILD_DIR}/bin.")
endif()
file(COPY ${databases} DESTINATION "${WORK_DIR}/example")
run("${WORK_DIR}/example/devicesBesideMe")
if(NOT output MATCHES "(^|\n)Hesko\n")
    message(FATAL_ERROR "The example does not know the model Hesko; it printed:\n${output}")
endif()

# The tools run from the moved prefix.
file(GLOB tools "${prefix}/bin/*")
list(LENGTH tools count)
if(NOT count EQUAL 2)
    message(FATAL_ERROR "Expected the two tools in ${prefix}/bin, found: ${tools}")
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
file(GLOB_RECURSE headers RELATIVE "${prefix}/include/kestrovaDevicelore" "${prefix}/include/kestrovaDevicelore/*.h")
list(LENGTH headers count)
if(count LESS 20)
    message(FATAL_ERROR "Only ${count} headers are installed.")
endif()
set(headerProject "${WORK_DIR}/headers")
set(text "cmake_minimum_required(VERSION 3.25)\nproject(headers CXX)\nset(CMAKE_CXX_STANDARD 17)\n"
    "find_package(kestrovaDevicelore REQUIRED)\nadd_library(headers OBJECT\n")
foreach(header IN LISTS headers)
    string(REGEX REPLACE "[^A-Za-z0-9]" "_" name "${header}")
    file(WRITE "${headerProject}/${name}.cpp" "#include \"${header}\"\n#include \"${header}\"\n")
    list(APPEND text "    ${name}.cpp\n")
endforeach()
list(APPEND text ")\ntarget_compile_options(headers PRIVATE -Wall -Wextra -Wpedantic -Werror)\n"
    "target_link_libraries(headers PRIVATE kestrova::Devicelore)\n")
list(JOIN text "" text)
file(WRITE "${headerProject}/CMakeLists.txt" "${text}")
run("${CMAKE_COMMAND}" -S "${headerProject}" -B "${headerProject}/build" -G "${GENERATOR}"
    "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}")
run("${CMAKE_COMMAND}" --build "${headerProject}/build")

# Nothing in the package remembers where it was built or first installed.
file(GLOB_RECURSE packageFiles "${prefix}/lib/*.cmake")
foreach(packageFile IN LISTS packageFiles)
    file(READ "${packageFile}" text)
    string(FIND "${text}" "${WORK_DIR}" position)
    string(FIND "${text}" "${SOURCE_DIR}" sourcePosition)
    if(NOT position EQUAL -1 OR NOT sourcePosition EQUAL -1)
        message(FATAL_ERROR "${packageFile} holds a path of the build machine.")
    endif()
endforeach()
