# Run by CTest: configures the project with something wrong or missing, and reads what it says.

cmake_minimum_required(VERSION 3.25)

# refuses(EXPECTED... OPTIONS ...): configuring with the options fails and says all that is expected.
function(refuses)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "EXPECTED;OPTIONS")
    file(REMOVE_RECURSE "${WORK_DIR}/build")
    execute_process(
        COMMAND "${CMAKE_COMMAND}" -S "${SOURCE_DIR}" -B "${WORK_DIR}/build" -G "${GENERATOR}"
            "-DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" -DBUILD_TESTING=OFF ${arg_OPTIONS}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result EQUAL 0)
        message(SEND_ERROR "Configured in spite of ${arg_OPTIONS}")
    endif()
    string(REGEX REPLACE "[ \n]+" " " output "${output}")
    foreach(text IN LISTS arg_EXPECTED)
        string(FIND "${output}" "${text}" position)
        if(position EQUAL -1)
            message(SEND_ERROR "${arg_OPTIONS}: expected \"${text}\" in\n${output}")
        endif()
    endforeach()
endfunction()

# fakePackage(NAME VERSION): a package for find_package(NAME), in the prefix WORK_DIR.
function(fakePackage name version)
    file(WRITE "${WORK_DIR}/lib/cmake/${name}/${name}Config.cmake" "set(${name}_FOUND TRUE)\n")
    file(WRITE "${WORK_DIR}/lib/cmake/${name}/${name}ConfigVersion.cmake"
        "set(PACKAGE_VERSION ${version})\n"
        "if(NOT PACKAGE_FIND_VERSION VERSION_GREATER PACKAGE_VERSION)\n  set(PACKAGE_VERSION_COMPATIBLE TRUE)\nendif()\n")
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
fakePackage(Qt5 5.12.8)
fakePackage(Qt6 6.2.4)
# Nothing of the system's is looked at.
set(onlyFakes "-DCMAKE_PREFIX_PATH=${WORK_DIR}" -DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF
    -DCMAKE_FIND_USE_SYSTEM_ENVIRONMENT_PATH=OFF)

refuses(OPTIONS -DKESTROVA_QT=4
    EXPECTED "KESTROVA_QT is the Qt to build with, 5 or 6, and not '4'.")
refuses(OPTIONS -DKESTROVA_QT=56
    EXPECTED "and not '56'.")
refuses(OPTIONS -DKESTROVA_QT=5 ${onlyFakes}
    EXPECTED "Found: Qt5 5.12.8" "Needed: Qt5 5.15 or newer" "apt-get install qtbase5-dev libqt5sql5-sqlite")
refuses(OPTIONS -DKESTROVA_QT=6 ${onlyFakes}
    EXPECTED "Found: Qt6 6.2.4" "Needed: Qt6 6.4 or newer" "apt-get install qt6-base-dev libqt6sql6-sqlite")
refuses(OPTIONS -DKESTROVA_QT=5 -DCMAKE_DISABLE_FIND_PACKAGE_Qt5=ON
    EXPECTED "Found: no Qt5" "Needed: Qt5 5.15 or newer")
refuses(OPTIONS -DKESTROVA_QT=6 -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON
    EXPECTED "Found: no Qt6" "Needed: Qt6 6.4 or newer")
refuses(OPTIONS -DKESTROVA_QT=${QT} -DCMAKE_DISABLE_FIND_PACKAGE_SQLite3=ON
    EXPECTED "Found: no SQLite3" "Needed: SQLite 3.38 or newer" "apt-get install libsqlite3-dev")
refuses(OPTIONS -DKESTROVA_QT=${QT} -DCMAKE_DISABLE_FIND_PACKAGE_OpenSSL=ON
    EXPECTED "Found: no OpenSSL" "Needed: OpenSSL 3.0 or newer" "apt-get install libssl-dev")
