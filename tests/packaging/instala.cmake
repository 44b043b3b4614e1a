# Installs the build in BUILD below TREE/usr and checks that each file is there.
file(REMOVE_RECURSE ${TREE})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${TREE}/usr
    COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
foreach(file
        bin/quiralto
        bin/quiralto-cli
        share/applications/io.github.quiralto.Quiralto.desktop
        share/bash-completion/completions/quiralto-cli
        share/doc/quiralto/LICENSE
        share/doc/quiralto/README.md
        share/doc/quiralto/manual.md
        share/fish/vendor_completions.d/quiralto-cli.fish
        share/icons/hicolor/scalable/apps/io.github.quiralto.Quiralto.svg
        share/icons/hicolor/16x16/apps/io.github.quiralto.Quiralto.png
        share/icons/hicolor/24x24/apps/io.github.quiralto.Quiralto.png
        share/icons/hicolor/32x32/apps/io.github.quiralto.Quiralto.png
        share/icons/hicolor/48x48/apps/io.github.quiralto.Quiralto.png
        share/icons/hicolor/128x128/apps/io.github.quiralto.Quiralto.png
        share/icons/hicolor/256x256/apps/io.github.quiralto.Quiralto.png
        share/man/man1/quiralto.1
        share/man/man1/quiralto-cli.1
        share/man/es/man1/quiralto.1
        share/man/es/man1/quiralto-cli.1
        share/metainfo/io.github.quiralto.Quiralto.metainfo.xml
        share/quiralto/Primos.Qto
        share/zsh/site-functions/_quiralto-cli)
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
