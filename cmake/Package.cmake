# "cpack -G DEB" in the build folder makes a package for Debian 12; scripts/check-package makes one and tries it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The hwknobs developers <hwknobs@invalid.example>" CACHE STRING "Who maintains the package")
set(CPACK_STRIP_FILES ON)
# Finishes the tree that becomes the package.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/DebianTree.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# It compiles what is set on the machine itself; listing and exporting work without it.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS device-tree-compiler)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "\
hwknobs chooses hardware and kernel tuning settings of an Android device from
a catalogue and writes them, as a device-tree overlay and bootloader settings,
where the bootloader finds them at the next boot. It is for engineers who
bring up and debug devices.")
# By the component that all belongs to, cpack keeps its list of files apart from that of "cmake --install".
set(CPACK_INSTALL_CMAKE_PROJECTS ${CMAKE_BINARY_DIR} ${PROJECT_NAME} Unspecified /)
include(CPack)
