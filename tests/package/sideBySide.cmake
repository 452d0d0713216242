# Run by CTest in the build with Qt 6: installs the build with Qt 5 and this one into one prefix, and builds and runs an
# application of either kind, both of them in one project.

cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

if(NOT EXISTS "${QT5_BUILD_DIR}/lib/libkestrovaDevicelore.so")
    message("Skipped: there is no build with Qt 5 in ${QT5_BUILD_DIR}")
    return()
endif()

file(REMOVE_RECURSE "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")
foreach(build IN ITEMS "${QT5_BUILD_DIR}" "${BUILD_DIR}")
    run("${CMAKE_COMMAND}" --install "${build}" --prefix "${prefix}")
    run("${CMAKE_COMMAND}" --install "${build}" --prefix "${WORK_DIR}/alone")
    file(GLOB_RECURSE files RELATIVE "${WORK_DIR}/alone" "${WORK_DIR}/alone/*")
    file(REMOVE_RECURSE "${WORK_DIR}/alone")
    foreach(file IN LISTS files)
        if(file IN_LIST installed)
            message(FATAL_ERROR "Both builds install ${file}.")
        endif()
    endforeach()
    list(APPEND installed ${files})
endforeach()

file(WRITE "${WORK_DIR}/source/CMakeLists.txt" "cmake_minimum_required(VERSION 3.25)
project(both CXX)
set(CMAKE_CXX_STANDARD 17)
set(QT_NO_CREATE_VERSIONLESS_TARGETS ON) # so that Qt itself lets both into one project
find_package(kestrovaDevicelore REQUIRED)
find_package(kestrovaDeviceloreQt6 REQUIRED)
foreach(suffix IN ITEMS \"\" Qt6)
    add_executable(example\${suffix} \"${SOURCE_DIR}/examples/devicesBesideMe.cpp\")
    target_link_libraries(example\${suffix} PRIVATE kestrova::Devicelore\${suffix})
endforeach()
")
run("${CMAKE_COMMAND}" -S "${WORK_DIR}/source" -B "${WORK_DIR}/build" -G "${GENERATOR}"
    "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}")
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/build")
check_example("${WORK_DIR}/build/example")
check_example("${WORK_DIR}/build/exampleQt6")
