# Headers that most files include, compiled once for each kind of target: they halve the time of a whole build.

option(ZEL_PRECOMPILED "Compile the most used headers once" ON)

# zel_precompiled(KIND LINKS library...): the headers of precompiled/KIND.h, for targets built with these libraries.
function(zel_precompiled kind)
  cmake_parse_arguments(KIND "" "" "LINKS" ${ARGN})
  if(NOT ZEL_PRECOMPILED)
    return()
  endif()
  add_library(zel_precompiled_${kind} OBJECT ${PROJECT_SOURCE_DIR}/cmake/precompiled/carrier.cpp)
  target_link_libraries(zel_precompiled_${kind} PRIVATE zel_flags tl::expected ${KIND_LINKS})
  target_precompile_headers(zel_precompiled_${kind} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/precompiled/${kind}.h)
endfunction()

function(zel_use_precompiled target kind)
  if(TARGET zel_precompiled_${kind})
    target_precompile_headers(${target} REUSE_FROM zel_precompiled_${kind})
  endif()
endfunction()

# The kind that suits a room or a wing.
function(zel_precompiled_kind room result)
  set(kind core)
  if(room MATCHES "^(chart|report)$")
    set(kind gui)
  elseif(room MATCHES "^app_")
    set(kind widgets)
  endif()
  set(${result} ${kind} PARENT_SCOPE)
endfunction()
