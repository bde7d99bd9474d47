# The flags that all code is built with, and the one way to declare a room.

include(${CMAKE_CURRENT_LIST_DIR}/ZelPrecompiled.cmake)

add_library(zel_warnings INTERFACE)
target_compile_options(zel_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wduplicated-cond -Wduplicated-branches
  -Wlogical-op -Wformat=2 -Wimplicit-fallthrough -Werror
  # GCC 12 sees the value of an empty optional as used when it is only moved; the sanitizers look instead.
  -Wno-maybe-uninitialized)
if(ZEL_PRECOMPILED) # GCC 12 sees strings that are joined as running over when <string> comes precompiled
  target_compile_options(zel_warnings INTERFACE -Wno-array-bounds -Wno-stringop-overflow -Wno-restrict)
endif()
if(CMAKE_UNITY_BUILD) # a name that only its own source file sees looks like one of a header
  target_compile_options(zel_warnings INTERFACE -Wno-subobject-linkage -Wno-shadow)
endif()

if(CMAKE_CXX_COMPILER_ID STREQUAL Clang) # only the fuzz targets: GCC does the judging
  target_compile_options(zel_warnings INTERFACE -Wno-error -Wno-unknown-warning-option)
endif()

add_library(zel_flags INTERFACE)
target_link_libraries(zel_flags INTERFACE zel_warnings)
target_compile_definitions(zel_flags INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
  QT_MESSAGELOGCONTEXT ZEL_VERSION="${PROJECT_VERSION}")
if(ZEL_SANITIZE)
  target_compile_options(zel_flags INTERFACE -fsanitize=${ZEL_SANITIZE} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  target_link_options(zel_flags INTERFACE -fsanitize=${ZEL_SANITIZE})
endif()

zel_precompiled(core LINKS Qt6::Core)
zel_precompiled(gui LINKS Qt6::Gui)
zel_precompiled(widgets LINKS Qt6::Widgets)

# zel_room(NAME SOURCES file... DOORS library...): the library zel_NAME of a room, or of a wing (app_graph).
# DOORS are the only rooms and libraries that its code may use; tests/walls checks the includes as well.
function(zel_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;DOORS" ${ARGN})
  add_library(zel_${name} STATIC ${ROOM_SOURCES})
  set_target_properties(zel_${name} PROPERTIES AUTOMOC ON)
  target_include_directories(zel_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(zel_${name} PUBLIC ${ROOM_DOORS} PRIVATE zel_flags)
  zel_precompiled_kind(${name} kind)
  zel_use_precompiled(zel_${name} ${kind})
endfunction()
