# Installs the build in BUILD below TREE/usr and checks that each file is there.
file(REMOVE_RECURSE ${TREE})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${TREE}/usr
    COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
foreach(file
        bin/quiralto
        bin/quiralto-cli
        share/applications/io.github.quiralto.Quiralto.desktop
        share/icons/hicolor/scalable/apps/io.github.quiralto.Quiralto.svg
        share/man/man1/quiralto.1
        share/man/man1/quiralto-cli.1
        share/quiralto/Primos.Qto
        share/metainfo/io.github.quiralto.Quiralto.metainfo.xml)
    if(NOT EXISTS ${TREE}/usr/${file})
        message(FATAL_ERROR "not installed: ${file}")
    endif()
endforeach()
execute_process(COMMAND ${TREE}/usr/bin/quiralto-cli --version COMMAND_ERROR_IS_FATAL ANY)

# The installed program finds its data.
file(WRITE ${TREE}/hoja 2147483647)
execute_process(
    COMMAND ${TREE}/usr/bin/quiralto-cli --orden "Hallar factores primos" ${TREE}/hoja
    COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
file(REMOVE ${TREE}/hoja)
