# Translations that are a part of a program or library, and the target that brings them up to date.
#
# The target update_translations adds new texts to the .ts files and drops old ones.
find_package(Qt6 6.4 QUIET COMPONENTS LinguistTools)
add_custom_target(update_translations)

# corvane_translations(<name> LANGUAGES <language>... SOURCES <file or folder>... OUTPUT <variable>)
#
# Compiles translations/<name>_<language>.ts; the variable names the results, none without Qt's
# LinguistTools. The sources are those with the texts.
function(corvane_translations name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "OUTPUT" "LANGUAGES;SOURCES")
    set(compiled)
    set(updated)
    if(NOT Qt6LinguistTools_FOUND)
        message(STATUS "Qt's LinguistTools not found: no translations of ${name}")
        set(arg_LANGUAGES)
    endif()
    foreach(language IN LISTS arg_LANGUAGES)
        set(ts ${CMAKE_CURRENT_SOURCE_DIR}/translations/${name}_${language}.ts)
        set(qm ${CMAKE_CURRENT_BINARY_DIR}/${name}_${language}.qm)
        add_custom_command(
            OUTPUT ${qm}
            COMMAND Qt6::lrelease -silent ${ts} -qm ${qm}
            DEPENDS ${ts}
            VERBATIM)
        list(APPEND compiled ${qm})
        list(APPEND updated ${ts})
    endforeach()
    if(updated)
        add_custom_target(update_translations_${name}
            COMMAND Qt6::lupdate -silent -locations none -no-obsolete ${arg_SOURCES} -ts ${updated}
            VERBATIM)
        add_dependencies(update_translations update_translations_${name})
    endif()
    set(${arg_OUTPUT} ${compiled} PARENT_SCOPE)
endfunction()

# corvane_embed_translations(<target> <name> <file>...)
#
# Puts what corvane_translations() compiled into the target, as constants that need no
# initialisation at run time; corvane/translation says how to reach them.
function(corvane_embed_translations target name)
    set(embedded ${CMAKE_CURRENT_BINARY_DIR}/${name}_translations.cpp)
    set(script ${PROJECT_SOURCE_DIR}/cmake/EmbedTranslations.cmake)
    add_custom_command(
        OUTPUT ${embedded}
        COMMAND ${CMAKE_COMMAND} "-DFILES=${ARGN}" -D NAME=${name} -D OUTPUT=${embedded} -P ${script}
        DEPENDS ${ARGN} ${script}
        VERBATIM)
    set_source_files_properties(${embedded} PROPERTIES SKIP_AUTOMOC ON)
    target_sources(${target} PRIVATE ${embedded})
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:embedded_translations>)
endfunction()
