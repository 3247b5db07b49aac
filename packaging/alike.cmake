# Gives all that is packed one time, that of the sources, and the rights of what everybody may use, whatever the umask of who
# builds it, so that the same sources give the same packages. Run by CPack.
execute_process(COMMAND chmod -R u=rwX,go=rX ${CPACK_TEMPORARY_DIRECTORY} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -exec touch --no-dereference --date=@${CPACK_SOURCE_DATE} {} +
                COMMAND_ERROR_IS_FATAL ANY)
