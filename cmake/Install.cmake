# cmake --install BUILD --prefix PREFIX. The paths within PREFIX are in InstallPaths.cmake.
install(TARGETS tarn_vendor_api binder hidlbase hwtarn_1_0 host_properties
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(TARGETS tarnctl tarn-board RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY include/tarn DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY simulator/boards DESTINATION ${CMAKE_INSTALL_DATADIR}/tarn)
install(FILES tools/tarnctl/completion/tarnctl.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME tarnctl)
install(FILES tools/tarnctl/completion/tarnctl.zsh
        DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions RENAME _tarnctl)
install(FILES man/tarnctl.1 man/tarn-board.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# A simulated board for other programs, in static libraries, and the headers of what it plays.
install(TARGETS tarn_simulator tarn_board_bus tarn_values tarn_protocol
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY simulator/include/ host/binder/include/ host/hidl/include/
                  host/properties/include/
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tarn-host FILES_MATCHING PATTERN *.h)

# How other projects find it.
include(CMakePackageConfigHelpers)
file(RELATIVE_PATH include_from_lib /${CMAKE_INSTALL_LIBDIR} /${CMAKE_INSTALL_INCLUDEDIR})
set(at @)
set(made ${PROJECT_BINARY_DIR}/packages)
foreach(file tarn_vendor_apiConfig.cmake tarn_vendor_api.pc tarn_simulator.pc)
  configure_file(cmake/${file}.in ${made}/${file} @ONLY)
endforeach()
write_basic_package_version_file(${made}/tarn_vendor_apiConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${made}/tarn_vendor_apiConfig.cmake ${made}/tarn_vendor_apiConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/tarn_vendor_api)
install(FILES ${made}/tarn_vendor_api.pc ${made}/tarn_simulator.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# cpack -G DEB, in the build folder.
set(CPACK_PACKAGE_NAME tarn-vendor-api)
set(CPACK_PACKAGE_CONTACT "the owner of tarn_vendor_api")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Client library of a large-format touch display's board")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "android-libutils-dev, android-liblog-dev, android-libcutils-dev, \
android-libbase-dev, android-platform-frameworks-native-headers, libjsoncpp-dev, \
libsdbus-c++-dev (>= 1.2), libstdc++6")
include(CPack)
