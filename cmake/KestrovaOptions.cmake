# What can be set when the project is configured.

set(KESTROVA_QT 5 CACHE STRING "The Qt to build with: 5 or 6")
set_property(CACHE KESTROVA_QT PROPERTY STRINGS 5 6)
if(NOT KESTROVA_QT MATCHES "^[56]$")
    message(FATAL_ERROR "KESTROVA_QT is the Qt to build with, 5 or 6, and not '${KESTROVA_QT}'.")
endif()
set(kestrovaQt "Qt${KESTROVA_QT}")

# Both builds can be installed into one prefix: that with Qt 5 has the plain names, that with Qt 6 adds "Qt6" to the
# names of its libraries, packages and header folder. The tools do the same in both, and are installed from one.
if(KESTROVA_QT EQUAL 5)
    set(kestrovaSuffix "")
    set(installTools ON)
else()
    set(kestrovaSuffix Qt6)
    set(installTools OFF)
endif()
option(KESTROVA_INSTALL_TOOLS "Install the command line tools; on by default with Qt 5" ${installTools})

set(KESTROVA_CORE "" CACHE STRING
    "The core library to build against: a CMake target or the absolute path of a shared library; empty builds the stand-in")

# Published on purpose: whoever builds without a key of his own protects nothing.
set(developmentKey "72df367f31d7bdccaa6f7d0917d92ef7d36fc7c1311db06eb6f112f67c945dcb")
set(KESTROVA_DATABASE_KEY "${developmentKey}" CACHE STRING
    "Raw 256-bit key of the databases, 64 hexadecimal digits; compiled in")
if(NOT KESTROVA_DATABASE_KEY MATCHES "^[0-9A-Fa-f]+$")
    message(FATAL_ERROR "KESTROVA_DATABASE_KEY must be 64 hexadecimal digits, and holds other characters.")
endif()
string(LENGTH "${KESTROVA_DATABASE_KEY}" keyLength)
if(NOT keyLength EQUAL 64)
    message(FATAL_ERROR "KESTROVA_DATABASE_KEY must be 64 hexadecimal digits, and has ${keyLength}.")
endif()

string(TOLOWER "${KESTROVA_DATABASE_KEY}" KESTROVA_DATABASE_KEY_LOWER)
if(KESTROVA_DATABASE_KEY_LOWER STREQUAL developmentKey)
    set(developmentBuild ON)
else()
    set(developmentBuild OFF)
endif()
option(KESTROVA_ACCEPT_PLAIN_DATABASES
    "Open plain SQLite files too; on by default with the development key" ${developmentBuild})

if(developmentBuild)
    message(STATUS "Database key: the published development key (plain databases accepted: "
        "${KESTROVA_ACCEPT_PLAIN_DATABASES}); set KESTROVA_DATABASE_KEY for a product")
else()
    message(STATUS "Database key: a key of your own (plain databases accepted: ${KESTROVA_ACCEPT_PLAIN_DATABASES})")
endif()
