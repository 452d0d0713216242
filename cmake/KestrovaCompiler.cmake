# How everything in this project is compiled.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

# An installed program or library finds its neighbours wherever the whole prefix has been moved to.
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

option(KESTROVA_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" ON)
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(KESTROVA_WARNINGS_AS_ERRORS)
    add_compile_options(-Werror)
endif()

# Messages that name a source file name it from the project's folder on, wherever that lies.
file(RELATIVE_PATH source_from_build "${CMAKE_BINARY_DIR}" "${PROJECT_SOURCE_DIR}")
add_compile_options("-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=" "-fmacro-prefix-map=${source_from_build}=")

# What is handed out holds no path of the machine that built it, and is the same whatever folder it was built in. Of two
# maps that fit, the last holds: a build folder within the project's keeps its name. A debug build is for here: debuggers
# find its sources from anywhere.
if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
    add_compile_options("-fdebug-prefix-map=${PROJECT_BINARY_DIR}=build" "-fdebug-prefix-map=${PROJECT_SOURCE_DIR}=.")
endif()

# Nothing that the oldest supported version of the chosen Qt calls deprecated.
if(KESTROVA_QT EQUAL 5)
    add_compile_definitions(QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
else()
    add_compile_definitions(QT_DISABLE_DEPRECATED_BEFORE=0x060400)
endif()
add_compile_definitions(
    QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH
    QT_NO_KEYWORDS)

option(KESTROVA_SANITIZE "Compile with the address, undefined behaviour and leak sanitizers" OFF)
if(KESTROVA_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

option(KESTROVA_FUZZ "Build the fuzz targets only; needs clang" OFF)
if(KESTROVA_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "KESTROVA_FUZZ needs clang, and the compiler is ${CMAKE_CXX_COMPILER_ID}; `./dev fuzz` "
            "takes the right one.")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

option(KESTROVA_COVERAGE "Count which lines the tests run" OFF)
if(KESTROVA_COVERAGE)
    # Inlined functions and branches of exceptions would blur what is counted.
    add_compile_options(--coverage -O0 -fno-inline -fprofile-abs-path -fprofile-update=atomic)
    add_link_options(--coverage)
endif()
