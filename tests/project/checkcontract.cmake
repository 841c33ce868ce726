# Fails when a library needs symbols of other libraries that are not in the contract's list.
#
#   NM         the nm program
#   LIBRARY    the library that is checked
#   FRAMEWORK  the libraries that stand behind the contract
#   BASE
#   CONTRACT   the list of allowed symbols
#   EXTRA      a file of symbols that the library is said to need as well; for trying the check

cmake_minimum_required(VERSION 3.25)

function(symbols_of library kind result)
    execute_process(
        COMMAND ${NM} --dynamic --demangle ${kind} --format=posix ${library}
        OUTPUT_VARIABLE text
        COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "\n" ";" lines "${text}")
    # Behind the name: a space, the kind of the symbol, its address and size.
    list(TRANSFORM lines REPLACE " [A-Za-z] [ 0-9a-f]*$" "")
    # A definition with a version.
    list(TRANSFORM lines REPLACE "@.*$" "")
    set(${result} "${lines}" PARENT_SCOPE)
endfunction()

symbols_of(${LIBRARY} --undefined-only needed)
if(DEFINED EXTRA)
    file(STRINGS ${EXTRA} extra)
    list(APPEND needed ${extra})
endif()
set(provided)
foreach(provider IN ITEMS ${FRAMEWORK} ${BASE})
    symbols_of(${provider} --defined-only symbols)
    list(APPEND provided ${symbols})
endforeach()
file(STRINGS ${CONTRACT} allowed REGEX "^[^#]")

set(used 0)
set(foreign)
foreach(symbol IN LISTS needed)
    if(symbol STREQUAL "" OR NOT symbol IN_LIST provided)
        continue()
    endif()
    math(EXPR used "${used} + 1")
    if(NOT symbol IN_LIST allowed)
        list(APPEND foreign "${symbol}")
    endif()
endforeach()

# A list that stopped matching would let everything pass.
foreach(symbol IN LISTS allowed)
    if(NOT symbol IN_LIST provided)
        message(SEND_ERROR "nobody provides: ${symbol}")
    endif()
endforeach()
if(used EQUAL 0)
    message(SEND_ERROR "the library needs nothing of the contract: is it the right one?")
endif()
foreach(symbol IN LISTS foreign)
    message(SEND_ERROR "not in the contract: ${symbol}")
endforeach()
message(STATUS "${used} symbols needed of the contract's libraries")
