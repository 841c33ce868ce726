# `cmake --install`: libraries, public headers, the CMake package Corvane and pkg-config files.
#
# Each library has a file of targets of its own, so that a program gets what it asks for and may
# bring its own framework.
include(CMakePackageConfigHelpers)

set(CORVANE_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Corvane)
set(CORVANE_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/corvane)

# corvane_install_library(<target> <component> [folder of headers])
function(corvane_install_library target component)
    install(TARGETS ${target}
        EXPORT Corvane${component}Targets
        LIBRARY
            DESTINATION ${CMAKE_INSTALL_LIBDIR}
            COMPONENT runtime
            NAMELINK_COMPONENT development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
        FILE_SET HEADERS DESTINATION ${CORVANE_HEADER_DIR}/${ARGN} COMPONENT development)
    install(EXPORT Corvane${component}Targets
        NAMESPACE Corvane::
        DESTINATION ${CORVANE_PACKAGE_DIR}
        COMPONENT development)
endfunction()

target_include_directories(corvane_contract INTERFACE $<INSTALL_INTERFACE:${CORVANE_HEADER_DIR}>)
set_target_properties(corvane_contract PROPERTIES EXPORT_NAME Contract)
install(TARGETS corvane_contract EXPORT CorvaneContractTargets)
install(EXPORT CorvaneContractTargets
    NAMESPACE Corvane::
    DESTINATION ${CORVANE_PACKAGE_DIR}
    COMPONENT development)
corvane_install_library(tavguibase Base)
corvane_install_library(corvaneframework Framework)
corvane_install_library(corvanegui Gui)
corvane_install_library(corvaneforms Forms)
corvane_install_library(corvane_streams Streams streams)

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
    DESTINATION ${CORVANE_PACKAGE_DIR}
    COMPONENT development)

# corvane_install_pkgconfig(<name> <library> <required packages> <description> [folder of headers])
set(CORVANE_PKGCONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH CORVANE_PREFIX_FROM_PKGCONFIG /${CORVANE_PKGCONFIG_DIR} /)
function(corvane_install_pkgconfig name library requires description)
    configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/corvane.pc.in ${name}.pc @ONLY)
    install(
        FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc
        DESTINATION ${CORVANE_PKGCONFIG_DIR}
        COMPONENT development)
endfunction()
corvane_install_pkgconfig(corvane-base tavguibase "Qt6Core"
    "Allocation accounting and trace callbacks")
corvane_install_pkgconfig(corvane-framework corvaneframework "corvane-base Qt6Core"
    "Descriptions and messages of live binary streams")
corvane_install_pkgconfig(corvane-streams corvaneframework "corvane-framework"
    "Decoding of live binary streams: MAVLink, Protocol Buffers, overlays" streams)
corvane_install_pkgconfig(corvane-gui corvanegui "corvane-framework Qt6Widgets"
    "Qt widgets that show the decoded messages of live binary streams")
