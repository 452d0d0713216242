# What `cmake --install` lays down: libraries, headers, tools, and the package that find_package() finds. Nothing in it
# holds the path of the prefix, so that the whole tree can be moved.

include(CMakePackageConfigHelpers)

set(kestrovaHeaderDir "${CMAKE_INSTALL_INCLUDEDIR}/kestrovaDevicelore")
set(kestrovaPackageDir "${CMAKE_INSTALL_LIBDIR}/cmake/kestrovaDevicelore")

set(kestrovaLibraries kestrovaCoreHeaders kestrovaDevicelore)
if(KESTROVA_CORE)
    set(KESTROVA_CORE_IS_FOREIGN ON)
else()
    set(KESTROVA_CORE_IS_FOREIGN OFF)
    list(APPEND kestrovaLibraries kestrovaCore)
endif()
install(TARGETS ${kestrovaLibraries}
    EXPORT kestrovaDeviceloreTargets
    LIBRARY
        DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        COMPONENT runtime
        NAMELINK_COMPONENT development
    FILE_SET HEADERS
        DESTINATION "${kestrovaHeaderDir}"
        COMPONENT development
    INCLUDES DESTINATION "${kestrovaHeaderDir}")

install(EXPORT kestrovaDeviceloreTargets
    NAMESPACE kestrova::
    DESTINATION "${kestrovaPackageDir}"
    COMPONENT development)

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/kestrovaDeviceloreConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/kestrovaDeviceloreConfig.cmake"
    INSTALL_DESTINATION "${kestrovaPackageDir}"
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/kestrovaDeviceloreConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/kestrovaDeviceloreConfig.cmake"
    "${PROJECT_BINARY_DIR}/kestrovaDeviceloreConfigVersion.cmake"
    DESTINATION "${kestrovaPackageDir}"
    COMPONENT development)
