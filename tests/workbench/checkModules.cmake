# Checks the libraries that the dynamic linker loads for PROGRAM: no function or object of the
# library's logic may be defined twice, or the program and its pages would have separate catalogues.
# With WITHOUT, a regular expression, the program must not load a library whose path matches.
#   cmake -DPROGRAM=... -DNM=... [-DWITHOUT=...] -P checkModules.cmake
file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${PROGRAM} RESOLVED_DEPENDENCIES_VAR libraries)

foreach(library IN LISTS libraries)
    if(WITHOUT AND library MATCHES "${WITHOUT}")
        message(SEND_ERROR "${PROGRAM} loads ${library}")
    endif()
endforeach()

list(FILTER libraries INCLUDE REGEX "/libvkd_[^/]*$")
foreach(module IN LISTS PROGRAM libraries)
    execute_process(COMMAND ${NM} --defined-only --format=just-symbols ${module}
                    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "_ZNK?4plib[^\n]*" symbols "${symbols}")
    list(REMOVE_DUPLICATES symbols) # local symbols of a file may have the name of another one
    list(LENGTH symbols count)
    math(EXPR total "${total} + ${count}")
    list(APPEND all ${symbols})
endforeach()

if(total EQUAL 0)
    message(SEND_ERROR "${PROGRAM} has no symbols to look at")
endif()
list(REMOVE_DUPLICATES all)
list(LENGTH all count)
math(EXPR twice "${total} - ${count}")
if(twice GREATER 0)
    message(SEND_ERROR "${PROGRAM} has ${twice} symbols of the logic twice")
endif()
