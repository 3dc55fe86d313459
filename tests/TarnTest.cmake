# tarn_test(NAME SOURCES file... LIBRARIES target...): one test program, one ctest entry, with
# properties of its own and, unless it asks for one, no bus.
function(tarn_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES} GTest::gmock GTest::gtest_main)
  # Tests are compiled often and measured never.
  target_compile_options(${name} PRIVATE -O0)
  tarn_precompiled_by(${name} test_headers)
  add_test(NAME ${name} COMMAND ${name})
  tarn_test_environment(${name})
endfunction()

# tarn_test_threaded(NAME...): tests that run under the thread sanitizer too.
add_custom_target(threaded_tests)
function(tarn_test_threaded)
  add_dependencies(threaded_tests ${ARGN})
  set_property(TEST ${ARGN} APPEND PROPERTY LABELS threaded)
endfunction()

# tarn_test_environment(NAME...): what a test must not share with its neighbours or the user.
function(tarn_test_environment)
  foreach(name IN LISTS ARGN)
    set(temporary ${CMAKE_CURRENT_BINARY_DIR}/${name}.tmp)
    file(MAKE_DIRECTORY ${temporary})
    set_property(TEST ${name} PROPERTY ENVIRONMENT
                 "TARN_PROPERTIES_FILE=${CMAKE_CURRENT_BINARY_DIR}/${name}.properties"
                 "TEST_TMPDIR=${temporary}"
                 "TARN_BOARD="
                 "DBUS_SESSION_BUS_ADDRESS="
                 "XDG_RUNTIME_DIR=")
  endforeach()
endfunction()

# tarn_unit_tests(CLASS... LIBRARIES target...): a program <Class>Test of <Class>Test.cpp for each.
function(tarn_unit_tests)
  cmake_parse_arguments(ARG "" "" "LIBRARIES" ${ARGN})
  foreach(class IN LISTS ARG_UNPARSED_ARGUMENTS)
    tarn_test(${class}Test SOURCES ${class}Test.cpp LIBRARIES ${ARG_LIBRARIES})
  endforeach()
endfunction()
