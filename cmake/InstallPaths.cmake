# Where installed programs and libraries find each other, wherever the tree is moved to.
include(GNUInstallDirs)
file(RELATIVE_PATH libraries_from_programs /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
set(CMAKE_INSTALL_RPATH "$ORIGIN" "$ORIGIN/${libraries_from_programs}" ${ANDROID_LIBRARY_DIR})
