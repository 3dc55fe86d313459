# The parts of the Android platform that Debian packages: headers, libutils, liblog.
# Debian's headers rely on <memory> and <limits> having been included, which libc++ does for them.
find_path(ANDROID_PLATFORM_INCLUDE_DIR utils/RefBase.h PATHS /usr/include/android NO_DEFAULT_PATH
          REQUIRED)
find_library(ANDROID_UTILS_LIBRARY utils
             PATHS /usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/android NO_DEFAULT_PATH REQUIRED)
find_library(ANDROID_LOG_LIBRARY log
             PATHS /usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/android NO_DEFAULT_PATH REQUIRED)
get_filename_component(ANDROID_LIBRARY_DIR ${ANDROID_UTILS_LIBRARY} DIRECTORY)

add_library(android_headers INTERFACE)
target_include_directories(android_headers SYSTEM INTERFACE ${ANDROID_PLATFORM_INCLUDE_DIR})
# A precompiled header has to come first, and includes them itself.
set(not_precompiled $<NOT:$<BOOL:$<TARGET_PROPERTY:TARN_PRECOMPILED>>>)
target_compile_options(android_headers INTERFACE
  "$<${not_precompiled}:SHELL:-include memory>" "$<${not_precompiled}:SHELL:-include limits>")

add_library(android_log INTERFACE)
target_link_libraries(android_log INTERFACE android_headers ${ANDROID_LOG_LIBRARY})

add_library(android_utils INTERFACE)
target_link_libraries(android_utils INTERFACE android_headers ${ANDROID_UTILS_LIBRARY} android_log)

# Debian keeps these libraries, and those that they need, in a folder of their own.
link_directories(${ANDROID_LIBRARY_DIR})
add_link_options(-Wl,-rpath-link,${ANDROID_LIBRARY_DIR} -Wl,-rpath,${ANDROID_LIBRARY_DIR})
