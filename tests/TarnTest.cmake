# tarn_runner(TARGET VARIABLE): what starts a program of this build, as a path. An emulated program has
# a script of its name in bin/emulated for that.
function(tarn_runner target variable)
  set(${variable} $<TARGET_FILE:${target}> PARENT_SCOPE)
  if(CMAKE_CROSSCOMPILING_EMULATOR)
    set(runner ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/emulated/${target})
    list(JOIN CMAKE_CROSSCOMPILING_EMULATOR " " emulator)
    set(program ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${target})
    file(WRITE ${runner} "#!/bin/sh\nexec ${emulator} ${program} \"$@\"\n")
    file(CHMOD ${runner} FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    set(${variable} ${runner} PARENT_SCOPE)
  endif()
endfunction()

# tarn_not_emulated(REASON WHAT...): for scripts/test-arm32 to name what an emulated processor of the
# device's architecture does not show.
function(tarn_not_emulated reason)
  if(CMAKE_CROSSCOMPILING_EMULATOR)
    foreach(what IN LISTS ARGN)
      set_property(GLOBAL APPEND PROPERTY TARN_NOT_EMULATED "${what}: ${reason}")
    endforeach()
  endif()
endfunction()

# tarn_test_not_emulated(REASON NAME...): the tests are named and don't run there.
function(tarn_test_not_emulated reason)
  if(CMAKE_CROSSCOMPILING_EMULATOR)
    tarn_not_emulated("${reason}" ${ARGN})
    set_tests_properties(${ARGN} PROPERTIES DISABLED TRUE)
  endif()
endfunction()

# tarn_cases_not_emulated(REASON NAME CASE...): the same for single cases of a test.
function(tarn_cases_not_emulated reason name)
  if(CMAKE_CROSSCOMPILING_EMULATOR)
    list(TRANSFORM ARGN PREPEND "${name}, " OUTPUT_VARIABLE whats)
    tarn_not_emulated("${reason}" ${whats})
    list(JOIN ARGN ":" cases)
    set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT GTEST_FILTER=-${cases})
  endif()
endfunction()

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
  # A test starts itself anew through it.
  if(CMAKE_CROSSCOMPILING_EMULATOR)
    tarn_runner(${name} runner)
    set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT TARN_TEST_SELF=${runner})
  endif()
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
