# Translations that are a part of a program or library, and the target that brings them up to date.
#
# The target update_translations adds new texts to the .ts files and drops old ones.
find_package(Qt6 6.4 QUIET COMPONENTS LinguistTools)
add_custom_target(update_translations)

# corvane_translations(<target> NAME <name> LANGUAGES <language>... SOURCES <folder>...)
#
# Compiles translations/<name>_<language>.ts into the target, as bytes that need no initialisation at
# run time; the target has translationdata.h on its include path. The folders are those with texts.
function(corvane_translations target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME" "LANGUAGES;SOURCES")
    set(files)
    set(updated)
    if(NOT Qt6LinguistTools_FOUND)
        message(STATUS "Qt's LinguistTools not found: ${target} is built without translations")
        set(arg_LANGUAGES)
    endif()
    foreach(language IN LISTS arg_LANGUAGES)
        set(ts ${CMAKE_CURRENT_SOURCE_DIR}/translations/${arg_NAME}_${language}.ts)
        set(qm ${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME}_${language}.qm)
        add_custom_command(
            OUTPUT ${qm}
            COMMAND Qt6::lrelease -silent ${ts} -qm ${qm}
            DEPENDS ${ts}
            VERBATIM)
        list(APPEND files ${qm})
        list(APPEND updated ${ts})
    endforeach()
    if(updated)
        add_custom_target(update_translations_${arg_NAME}
            COMMAND Qt6::lupdate -silent -locations none -no-obsolete ${arg_SOURCES} -ts ${updated}
            WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
            VERBATIM)
        add_dependencies(update_translations update_translations_${arg_NAME})
    endif()

    set(embedded ${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME}_translations.cpp)
    set(script ${PROJECT_SOURCE_DIR}/cmake/EmbedTranslations.cmake)
    add_custom_command(
        OUTPUT ${embedded}
        COMMAND ${CMAKE_COMMAND} "-DFILES=${files}" -D NAME=${arg_NAME} -D OUTPUT=${embedded} -P ${script}
        DEPENDS ${files} ${script}
        VERBATIM)
    set_source_files_properties(${embedded} PROPERTIES SKIP_AUTOMOC ON)
    target_sources(${target} PRIVATE ${embedded})
endfunction()
