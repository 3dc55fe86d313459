# Headers of other projects that many sources include, compiled once. The library itself does
# without: each of its sources names all that it needs. Elsewhere a missing include shows in the
# asan preset, which switches this off. Compilers' launchers, as a cache, can do little with it.
set(precompile ON)
if(CMAKE_DISABLE_PRECOMPILE_HEADERS OR CMAKE_CXX_COMPILER_LAUNCHER)
  set(precompile OFF)
endif()

# tarn_precompile(TARGET <header>...)
function(tarn_precompile target)
  if(precompile)
    target_precompile_headers(${target} PRIVATE <memory> <limits> ${ARGN})
    set_property(TARGET ${target} PROPERTY TARN_PRECOMPILED ON)
  endif()
endfunction()

# tarn_precompiled_by(TARGET OWNER): the headers of another target, compiled with the same flags.
function(tarn_precompiled_by target owner)
  if(precompile)
    target_precompile_headers(${target} REUSE_FROM ${owner})
    set_property(TARGET ${target} PROPERTY TARN_PRECOMPILED ON)
  endif()
endfunction()
