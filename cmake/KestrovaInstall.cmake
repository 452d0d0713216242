# What `cmake --install` lays down: libraries, headers, tools, and the package that find_package() finds. Nothing in it
# holds the path of the prefix, so that the whole tree can be moved.

include(CMakePackageConfigHelpers)

# The headers are the same for each Qt, yet each build has its own: either may be removed or upgraded without the other.
set(kestrovaPackage "kestrovaDevicelore${kestrovaSuffix}")
set(kestrovaHeaderDir "${CMAKE_INSTALL_INCLUDEDIR}/${kestrovaPackage}")
set(kestrovaPackageDir "${CMAKE_INSTALL_LIBDIR}/cmake/${kestrovaPackage}")
set(kestrovaPkgConfigDir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

set(kestrovaLibraries kestrovaCoreHeaders kestrovaDevicelore)
if(KESTROVA_CORE)
    set(KESTROVA_CORE_IS_FOREIGN ON)
    list(APPEND kestrovaLibraries kestrovaForeignCore)
else()
    set(KESTROVA_CORE_IS_FOREIGN OFF)
    list(APPEND kestrovaLibraries kestrovaCore)
endif()
install(TARGETS ${kestrovaLibraries}
    EXPORT ${kestrovaPackage}Targets
    LIBRARY
        DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        COMPONENT runtime
        NAMELINK_COMPONENT development
    FILE_SET HEADERS
        DESTINATION "${kestrovaHeaderDir}"
        COMPONENT development
    INCLUDES DESTINATION "${kestrovaHeaderDir}")

install(EXPORT ${kestrovaPackage}Targets
    NAMESPACE kestrova::
    DESTINATION "${kestrovaPackageDir}"
    COMPONENT development)

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/kestrovaDeviceloreConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/${kestrovaPackage}Config.cmake"
    INSTALL_DESTINATION "${kestrovaPackageDir}"
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/${kestrovaPackage}ConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/${kestrovaPackage}Config.cmake"
    "${PROJECT_BINARY_DIR}/${kestrovaPackage}ConfigVersion.cmake"
    DESTINATION "${kestrovaPackageDir}"
    COMPONENT development)

# Where the prefix is, the .pc file tells from its own place.
set(kestrovaPrefixFromPc "/prefix")
cmake_path(RELATIVE_PATH kestrovaPrefixFromPc BASE_DIRECTORY "/prefix/${kestrovaPkgConfigDir}")
if(KESTROVA_CORE)
    set(kestrovaCoreLibrary "") # it is not installed from here: the application names its own
else()
    set(kestrovaCoreLibrary " -lkestrovaCore${kestrovaSuffix}")
endif()
if(KESTROVA_QT EQUAL 5)
    set(kestrovaPcOptions " -fPIC") # Qt 5 refuses to be compiled without, and its own .pc files do not ask for it
else()
    set(kestrovaPcOptions "")
endif()
configure_file(
    "${CMAKE_CURRENT_LIST_DIR}/kestrovaDevicelore.pc.in"
    "${PROJECT_BINARY_DIR}/${kestrovaPackage}.pc"
    @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/${kestrovaPackage}.pc"
    DESTINATION "${kestrovaPkgConfigDir}"
    COMPONENT development)
