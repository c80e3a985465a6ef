# quorix_harden(TARGET): adds the protections that distributions build with to TARGET alone. A host
# that builds us as a part of itself keeps its own compile flags. Not with sanitizers, which bring
# their own checks.

set(quorix_compile_hardening "")
set(quorix_link_hardening "")
if(QUORIX_HARDENING AND NOT QUORIX_SANITIZE AND UNIX)
  include(CheckCXXCompilerFlag)
  include(CheckCXXSourceCompiles)
  foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection
      -mbranch-protection=standard)
    string(MAKE_C_IDENTIFIER "quorix_takes${flag}" takes)
    check_cxx_compiler_flag("-Werror ${flag}" ${takes})
    if(${takes})
      list(APPEND quorix_compile_hardening ${flag})
    endif()
  endforeach()

  # Use level 3 if the compiler and the C library support it. Only optimised code can be fortified.
  set(CMAKE_REQUIRED_FLAGS "-O2 -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3")
  check_cxx_source_compiles("#include <cstdlib>
    #if __USE_FORTIFY_LEVEL < 3
    #error the C library fortifies less
    #endif
    int main() { return 0; }" quorix_fortifies_3)
  unset(CMAKE_REQUIRED_FLAGS)
  set(fortify 2)
  if(quorix_fortifies_3)
    set(fortify 3)
  endif()
  set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
  if(quorix_optimise)
    set(optimised 1)
  endif()
  list(APPEND quorix_compile_hardening
    $<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=${fortify}>)

  if(NOT APPLE)
    set(quorix_link_hardening LINKER:-z,relro LINKER:-z,now)
  endif()
  # Links the programs as PIE; their code is position-independent already.
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)
endif()

function(quorix_harden target)
  target_compile_options(${target} PRIVATE ${quorix_compile_hardening})
  target_link_options(${target} PRIVATE ${quorix_link_hardening})
endfunction()
