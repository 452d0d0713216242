# Run by CTest: builds a core library of another name, with a key of its own that no tool of ours has, and the project
# against it; asks for a device of a database that only that library opens; installs, and builds examples/ with CMake and
# with pkg-config. Then configures the project with that library as a target.

cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

if(QT EQUAL 6)
    set(suffix Qt6)
endif()
set(key "00112233445566778899aabbccddeeff00112233445566778899aabbccddeeff")
set(configure "${CMAKE_COMMAND}" -G "${GENERATOR}" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}"
    "-DCMAKE_CXX_COMPILER_LAUNCHER=${CXX_COMPILER_LAUNCHER}" "-DKESTROVA_QT=${QT}"
    -DBUILD_TESTING=OFF -DCMAKE_UNITY_BUILD=ON)

# expect(TEXT): ends the test unless the last run() printed this.
function(expect text)
    string(FIND "${output}" "${text}" position)
    if(position EQUAL -1)
        message(FATAL_ERROR "Expected \"${text}\" in\n${output}")
    endif()
endfunction()

# refused(TEXT COMMAND ARGUMENT...): ends the test unless the command fails and prints the text.
function(refused text)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\nis not refused:\n${output}")
    endif()
    string(REGEX REPLACE "[ \n]+" " " output "${output}") # as CMake breaks the lines of a message
    expect("${text}")
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")

# The maker's core library: the stand-in, in a project of its own, under another name and with another key.
file(WRITE "${WORK_DIR}/maker/CMakeLists.txt" "cmake_minimum_required(VERSION 3.25)
project(maker CXX)
add_subdirectory(\"${SOURCE_DIR}\" project)
set_target_properties(kestrovaCore PROPERTIES OUTPUT_NAME makersCore VERSION 7.1 SOVERSION 7)
")
run(${configure} -S "${WORK_DIR}/maker" -B "${WORK_DIR}/makerBuild" "-DKESTROVA_DATABASE_KEY=${key}")
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/makerBuild" --target kestrovaCore)
set(coreDir "${WORK_DIR}/makerBuild/project/lib")
set(core "${coreDir}/libmakersCore.so")

# The project against that library. Nothing has the name of the stand-in.
set(build "${WORK_DIR}/build")
refused("'libmakersCore.so' is neither" ${configure} -S "${SOURCE_DIR}" -B "${WORK_DIR}/refused" -DKESTROVA_CORE=libmakersCore.so)
run(${configure} -S "${SOURCE_DIR}" -B "${build}" "-DKESTROVA_CORE=${core}")
run("${CMAKE_COMMAND}" --build "${build}")
file(GLOB_RECURSE standIns "${build}/libkestrovaCore*")
if(standIns)
    message(FATAL_ERROR "The stand-in has been built as well: ${standIns}")
endif()

# A sample database that only the maker's library opens, and one that only the stand-in opens.
set(world "${WORK_DIR}/world")
set(databases "${world}/bin") # where check_example looks for them
file(MAKE_DIRECTORY "${databases}" "${WORK_DIR}/standIn")
run("${build}/bin/devicelore-db" new "${world}/plain.db" --sql "${SOURCE_DIR}/samples/amplifiers.sql")
run(sqlcipher -batch "${world}/plain.db"
    "ATTACH DATABASE '${databases}/amplifiers.db3' AS encrypted KEY \"x'${key}'\"; SELECT sqlcipher_export('encrypted');")
run("${STANDIN_TOOL}" encrypt "${world}/plain.db" "${WORK_DIR}/standIn/amplifiers.db3")

run("${build}/bin/devicelore" device C7000212 --databases "${databases}")
expect("description           C7000312")
expect("model                 Hesko")
refused("cannot open the database" "${build}/bin/devicelore" devices --databases "${WORK_DIR}/standIn")
run("${build}/bin/devicelore-db" diff "${databases}/amplifiers.db3" "${databases}/amplifiers.db3")
expect("0 breaking, 0 compatible")

# The tool of the authors keeps its own cipher, and says so.
set(whoseCipher "devicelore-db: cipher and key are those of the stand-in for the core library, not those of the core library that this build uses\n")
run("${build}/bin/devicelore-db" encrypt "${world}/plain.db" "${world}/encrypted.db3")
expect("${whoseCipher}")
run("${build}/bin/devicelore-db" decrypt "${world}/encrypted.db3" "${world}/decrypted.db")
expect("${whoseCipher}")

# An application names the maker's library too, by path or as a target.
set(prefix "${WORK_DIR}/prefix")
run("${CMAKE_COMMAND}" --install "${build}" --prefix "${prefix}")
set(BUILD_DIR "${world}")
set(example "${CMAKE_COMMAND}" -S "${SOURCE_DIR}/examples" -G "${GENERATOR}" "-DCMAKE_PREFIX_PATH=${prefix}"
    "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" "-DAPPLICATION_QT=${QT}")
refused("set KESTROVA_CORE to the CMake target or the absolute path of the core library" ${example} -B "${WORK_DIR}/lost")
run(${example} -B "${WORK_DIR}/example" "-DKESTROVA_CORE=${core}")
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/example")
set(ENV{LD_LIBRARY_PATH} "${coreDir}") # where the installed library finds what it was built against
check_example("${WORK_DIR}/example/devicesBesideMe")

file(GLOB_RECURSE pcFile "${prefix}/*.pc")
cmake_path(GET pcFile PARENT_PATH pcDir)
cmake_path(GET pcDir PARENT_PATH libraryDir)
set(ENV{PKG_CONFIG_PATH} "${pcDir}")
set(ENV{LD_LIBRARY_PATH} "${libraryDir}:${coreDir}")
run(pkg-config --cflags --libs "kestrovaDevicelore${suffix} >= 1.4")
separate_arguments(pcFlags UNIX_COMMAND "${output}")
file(MAKE_DIRECTORY "${WORK_DIR}/pcExample")
run("${CXX_COMPILER}" -std=c++17 -o "${WORK_DIR}/pcExample/devicesBesideMe"
    "${SOURCE_DIR}/examples/devicesBesideMe.cpp" ${pcFlags} "${core}")
check_example("${WORK_DIR}/pcExample/devicesBesideMe")
if(EXISTS "${prefix}/bin/devicelore")
    run("${prefix}/bin/devicelore" device C7000212 --databases "${databases}")
    expect("model                 Hesko")
endif()

# As a target of a project that holds this one: a library of that project, and one that a package brought. The package of
# this project asks for it by the one name that it knows.
foreach(target IN ITEMS "add_library(own::core SHARED IMPORTED)" "add_library(ownCore SHARED own.cpp)")
    string(REGEX REPLACE "add_library.([A-Za-z:]+).*" "\\1" name "${target}")
    string(MAKE_C_IDENTIFIER "${name}" folder)
    file(WRITE "${WORK_DIR}/${folder}/own.cpp" "")
    file(WRITE "${WORK_DIR}/${folder}/CMakeLists.txt" "cmake_minimum_required(VERSION 3.25)
project(own CXX)
${target}
set_target_properties(${name} PROPERTIES IMPORTED_LOCATION \"${core}\")
set(KESTROVA_CORE ${name})
add_subdirectory(\"${SOURCE_DIR}\" project)
")
    run(${configure} -S "${WORK_DIR}/${folder}" -B "${WORK_DIR}/${folder}/build")
    file(GLOB_RECURSE targetsFile "${WORK_DIR}/${folder}/build/*/kestrovaDevicelore${suffix}Targets.cmake")
    file(READ "${targetsFile}" output)
    expect("kestrova::Core${suffix}\"")
endforeach()
