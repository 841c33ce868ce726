# Fails when a library loads Qt Gui or Qt Widgets, itself or through others.
#
#   LIBRARY  the library that is checked
#   LOADED   a file in place of what ldd says of the library; for trying the check

cmake_minimum_required(VERSION 3.25)

if(DEFINED LOADED)
    file(READ ${LOADED} text)
else()
    execute_process(COMMAND ldd ${LIBRARY} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
endif()
if(NOT text MATCHES "libQt6Core")
    message(SEND_ERROR "the library does not even load Qt Core: is it the right one?")
endif()
string(REGEX MATCHALL "libQt6(Gui|Widgets)[^ ]*" found "${text}")
list(REMOVE_DUPLICATES found)
foreach(library IN LISTS found)
    message(SEND_ERROR "loads ${library}")
endforeach()
