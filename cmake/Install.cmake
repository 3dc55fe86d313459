# cmake --install BUILD --prefix PREFIX
install(TARGETS tarn_vendor_api binder hidlbase hwtarn_1_0 host_properties
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(TARGETS tarnctl tarn-board RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY include/tarn DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY simulator/boards DESTINATION ${CMAKE_INSTALL_DATADIR}/tarn)
install(FILES tools/tarnctl/completion/tarnctl.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME tarnctl)
