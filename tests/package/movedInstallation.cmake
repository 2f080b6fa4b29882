# Moves a copy of the installation <stage> and starts a program in it that needs the data in share/.
set(moved ${stage}-moved)
file(REMOVE_RECURSE ${moved})
file(COPY ${stage}/ DESTINATION ${moved})
file(GLOB_RECURSE libraries ${moved}/lib/*.so*)
foreach(library IN LISTS libraries)
    get_filename_component(name ${library} NAME)
    file(MAKE_DIRECTORY ${moved}/other/links)
    file(CREATE_LINK ${library} ${moved}/other/links/${name} SYMBOLIC)
endforeach()
foreach(folder IN ITEMS "" ${moved}/other/links)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${folder}
                            ${moved}/bin/plib_workbench catalogue
                    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
file(REMOVE_RECURSE ${moved})
