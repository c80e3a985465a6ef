# Settings for all targets: warnings (errors in the dev preset), sanitizers, and ccache if it is
# there.

add_library(quorix_warnings INTERFACE)
if(MSVC)
  target_compile_options(quorix_warnings INTERFACE /W4)
else()
  target_compile_options(quorix_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion
    -Wno-sign-conversion
    # In a unity build, files see each other's local names.
    $<$<BOOL:${CMAKE_UNITY_BUILD}>:-Wno-shadow>
    # GCC 12 warns of these two inside the standard library's own variant and string.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
endif()

if(QUORIX_SANITIZE)
  add_compile_options(-fsanitize=${QUORIX_SANITIZE} -fno-omit-frame-pointer)
  if(QUORIX_SANITIZE MATCHES "undefined")
    add_compile_options(-fno-sanitize-recover=undefined)
  endif()
  add_link_options(-fsanitize=${QUORIX_SANITIZE})
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()
