# What every target of the project shares; linked PRIVATE, so nothing of it reaches a user.
option(WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)

add_library(project_options INTERFACE)
target_compile_features(project_options INTERFACE cxx_std_20)
target_compile_options(project_options INTERFACE
    -Wall -Wextra -Wpedantic -Wcast-align -Wconversion -Wno-sign-conversion -Wformat=2
    -fno-semantic-interposition
    $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>
    $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual>
    $<$<BOOL:${WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(project_options INTERFACE
    QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# The many test programs are linked in a tenth of the time. It knows nothing of g++'s link-time optimisation.
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
    find_program(CORVANE_FAST_LINKER NAMES ld.lld)
    if(CORVANE_FAST_LINKER)
        add_link_options(-fuse-ld=lld -Wl,--build-id=sha1) # as long as the usual one
    endif()
endif()

# One folder of a shared library: compiled once, linked into the library that names it.
function(corvane_folder_library name)
    add_library(${name} OBJECT ${ARGN})
    target_link_libraries(${name} PRIVATE project_options)
endfunction()
