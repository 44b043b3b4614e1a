# Draws the icons with SCRIPT into DRAWN and compares them with those in FILES.
file(REMOVE_RECURSE ${DRAWN})
file(MAKE_DIRECTORY ${DRAWN})
execute_process(COMMAND ${SCRIPT} ${DRAWN} COMMAND_ERROR_IS_FATAL ANY)
foreach(size 16 24 32 48 128 256)
    execute_process(COMMAND ${COMPARE} ${size} ${FILES}/${size}.png ${DRAWN}/${size}.png
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()
