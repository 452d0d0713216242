# What the project needs of the system. What is missing or unfit ends the configuration with what was found, what is
# needed, and what to install.

function(kestrova_refuse found needed packages)
    message(FATAL_ERROR
        "Found:    ${found}\n"
        "Needed:   ${needed}\n"
        "On Debian: apt-get install ${packages}")
endfunction()

# kestrova_found(NAME RESULT): which versions of a package find_package(NAME) has seen and not taken, as text.
function(kestrova_found name result)
    list(JOIN ${name}_CONSIDERED_VERSIONS ", " versions)
    if(versions)
        set(text "${name} ${versions}")
    elseif(${name}_VERSION)
        set(text "${name} ${${name}_VERSION}")
    else()
        set(text "no ${name}")
    endif()
    if(${name}_NOT_FOUND_MESSAGE)
        string(APPEND text " (${${name}_NOT_FOUND_MESSAGE})")
    endif()
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

if(KESTROVA_QT EQUAL 5)
    set(kestrovaQtVersion 5.15)
    set(qtPackages "qtbase5-dev libqt5sql5-sqlite")
else()
    set(kestrovaQtVersion 6.4)
    set(qtPackages "qt6-base-dev libqt6sql6-sqlite")
endif()
find_package(${kestrovaQt} ${kestrovaQtVersion} QUIET COMPONENTS Core Sql)
if(NOT ${kestrovaQt}_FOUND)
    kestrova_found(${kestrovaQt} found)
    kestrova_refuse("${found}" "${kestrovaQt} ${kestrovaQtVersion} or newer with its modules Core and Sql" "${qtPackages}")
endif()

find_package(SQLite3 3.38 QUIET)
if(NOT SQLite3_FOUND)
    kestrova_found(SQLite3 found)
    kestrova_refuse("${found}" "SQLite 3.38 or newer, as a shared library with its header" "libsqlite3-dev")
endif()

find_package(OpenSSL 3.0 QUIET COMPONENTS Crypto)
if(NOT OPENSSL_FOUND)
    set(OpenSSL_VERSION "${OPENSSL_VERSION}")
    kestrova_found(OpenSSL found)
    kestrova_refuse("${found}" "OpenSSL 3.0 or newer, its library crypto with the headers" "libssl-dev")
endif()

message(STATUS "Qt ${${kestrovaQt}_VERSION}, SQLite ${SQLite3_VERSION}, OpenSSL ${OPENSSL_VERSION}")

# The encrypted databases reach Qt through the SQLite library that both share. It is asked once; a failure is asked
# again, since something may have been installed.
if(NOT CMAKE_CROSSCOMPILING)
    set(shares kestrovaQt${KESTROVA_QT}SharesSqlite)
    try_run(${shares} compiles
        "${PROJECT_BINARY_DIR}/driverSqlite" "${CMAKE_CURRENT_LIST_DIR}/driverSqlite.cpp"
        LINK_LIBRARIES ${kestrovaQt}::Core ${kestrovaQt}::Sql SQLite::SQLite3
        CXX_STANDARD 17
        COMPILE_OUTPUT_VARIABLE compilerOutput
        RUN_OUTPUT_VARIABLE found)
    if(NOT compiles)
        unset(${shares} CACHE)
        unset(compiles CACHE)
        message(FATAL_ERROR "A program with Qt and SQLite does not compile and link:\n${compilerOutput}")
    elseif(NOT ${shares} EQUAL 0)
        unset(${shares} CACHE)
        unset(compiles CACHE)
        string(STRIP "${found}" found)
        kestrova_refuse("${found}"
            "the driver QSQLITE of ${kestrovaQt}, using the same shared library of SQLite as this project does (${SQLite3_LIBRARIES})"
            "${qtPackages} libsqlite3-dev")
    endif()
endif()
