# Installs the build in BUILD under TREE, as a packager would.
file(REMOVE_RECURSE ${TREE})
set(ENV{DESTDIR} ${TREE})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix /usr
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
