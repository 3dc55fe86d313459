# libtarn_vendor_api.so, which exports what include/tarn/ declares and no more, and beside it
# libtarn_vendor_api.a of the same objects, for tests of what the shared one hides.

# What sources of both kinds of user need: the library's headers and the platform's.
add_library(tarn_headers INTERFACE)
target_include_directories(tarn_headers INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>)
target_link_libraries(tarn_headers INTERFACE binder android_utils)

add_library(tarn_objects OBJECT)
target_include_directories(tarn_objects PRIVATE ${PROJECT_SOURCE_DIR})
target_link_libraries(tarn_objects PUBLIC tarn_headers hwtarn_1_0 host_properties android_log)
set_target_properties(tarn_objects PROPERTIES CXX_VISIBILITY_PRESET hidden
                                              VISIBILITY_INLINES_HIDDEN ON)
target_compile_options(tarn_objects PRIVATE -fstack-protector-strong)
if(NOT TARN_SANITIZE)
  # Needs an optimizing build; the sanitizers bring checks of their own.
  target_compile_options(tarn_objects PRIVATE
    "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
endif()

set(exports ${CMAKE_CURRENT_LIST_DIR}/exports.map)
add_library(tarn_vendor_api SHARED)
# As another project calls it that found it installed.
add_library(tarn_vendor_api::tarn_vendor_api ALIAS tarn_vendor_api)
target_link_libraries(tarn_vendor_api PUBLIC tarn_headers
                                      PRIVATE tarn_objects)
target_link_options(tarn_vendor_api PRIVATE
  -Wl,--version-script,${exports} -Wl,--as-needed
  -Wl,-z,relro -Wl,-z,now -Wl,-z,text -Wl,-z,noexecstack)
# Clang puts the sanitizers' runtime into the program alone.
if(NOT (TARN_SANITIZE AND CMAKE_CXX_COMPILER_ID MATCHES "Clang"))
  target_link_options(tarn_vendor_api PRIVATE -Wl,--no-undefined)
endif()
set_target_properties(tarn_vendor_api PROPERTIES LINK_DEPENDS ${exports}
                                                 VERSION ${PROJECT_VERSION}
                                                 SOVERSION ${PROJECT_VERSION_MAJOR})

add_library(tarn_vendor_api_static STATIC)
target_link_libraries(tarn_vendor_api_static PUBLIC tarn_headers
                                             PRIVATE tarn_objects)
set_target_properties(tarn_vendor_api_static PROPERTIES
  OUTPUT_NAME tarn_vendor_api ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
if(NOT PROJECT_IS_TOP_LEVEL)
  set_target_properties(tarn_vendor_api_static PROPERTIES EXCLUDE_FROM_ALL ON)
endif()
