# `cmake --install`: libraries, public headers and the CMake package Corvane.
include(CMakePackageConfigHelpers)

set(CORVANE_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Corvane)

install(TARGETS tavguibase corvaneframework corvanegui
    EXPORT CorvaneTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/corvane)
install(EXPORT CorvaneTargets NAMESPACE Corvane:: DESTINATION ${CORVANE_PACKAGE_DIR})

configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/CorvaneConfig.cmake.in
    ${PROJECT_BINARY_DIR}/CorvaneConfig.cmake
    INSTALL_DESTINATION ${CORVANE_PACKAGE_DIR})
write_basic_package_version_file(
    ${PROJECT_BINARY_DIR}/CorvaneConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(
    FILES
        ${PROJECT_BINARY_DIR}/CorvaneConfig.cmake
        ${PROJECT_BINARY_DIR}/CorvaneConfigVersion.cmake
    DESTINATION ${CORVANE_PACKAGE_DIR})
