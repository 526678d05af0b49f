# Run by CPack on the installed tree: what Debian wants in other places, compressed, or besides.
set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
set(documents ${share}/doc/hwknobs)
set(source ${CMAKE_CURRENT_LIST_DIR}/..)

file(RENAME ${share}/zsh/site-functions ${share}/zsh/vendor-completions)

file(COPY ${source}/share/debian/copyright DESTINATION ${documents})
file(STRINGS ${source}/CHANGELOG.md heading REGEX "^## \\[${CPACK_PACKAGE_VERSION}\\] - ")
string(REGEX MATCH "[0-9-]+$" date "${heading}")
execute_process(COMMAND date --utc --rfc-email --date=${date} OUTPUT_VARIABLE HWKNOBS_DATE
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
configure_file(${source}/share/debian/changelog.in ${documents}/changelog.Debian @ONLY)
file(RENAME ${documents}/CHANGELOG.md ${documents}/changelog)
execute_process(COMMAND gzip --best --no-name ${documents}/changelog ${documents}/changelog.Debian ${share}/man/man1/hwknobs.1
                COMMAND_ERROR_IS_FATAL ANY)

# Whatever the umask of who builds it, everybody can read what is installed.
set(for_all OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
file(CHMOD_RECURSE ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr
     DIRECTORY_PERMISSIONS ${for_all} OWNER_EXECUTE GROUP_EXECUTE WORLD_EXECUTE)
file(CHMOD_RECURSE ${share} FILE_PERMISSIONS ${for_all})
