# Settings of all our libraries: static or shared by BUILD_SHARED_LIBS, exporting only the symbols
# that QUORIX_EXPORT marks. A library looks for our others in its own folder, so the folder can be
# moved.

if(WIN32 AND BUILD_SHARED_LIBS)
  message(STATUS "On Windows the libraries are static")
  set(BUILD_SHARED_LIBS OFF)
endif()

set(quorix_here "$ORIGIN")
if(APPLE)
  set(quorix_here "@loader_path")
endif()

# Compatible versions share a series: until 1.0 a minor version may break hosts, afterwards only a
# major version. The soname, find_package and the Debian packages' names use the series.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(quorix_series ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
  set(quorix_compatibility SameMinorVersion)
else()
  set(quorix_series ${PROJECT_VERSION_MAJOR})
  set(quorix_compatibility SameMajorVersion)
endif()

# Calls Qt and the C++ library without a stub (PLT). The stubs would cost 4 % of the time of a
# painted row.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag("-Werror -fno-plt" quorix_takes_no_plt)

# quorix_library(TARGET NAME SOURCE...): makes a library that hosts link as QuorixWidgets::NAME.
function(quorix_library target name)
  add_library(${target} ${ARGN})
  add_library(QuorixWidgets::${name} ALIAS ${target})
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${name} VERSION ${PROJECT_VERSION} SOVERSION ${quorix_series}
    INSTALL_RPATH "${quorix_here}" BUILD_RPATH_USE_ORIGIN ON)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:quorix_warnings>)
  if(quorix_optimise)
    target_compile_options(${target} PRIVATE -O2)
  endif()
  if(quorix_takes_no_plt)
    target_compile_options(${target} PRIVATE -fno-plt)
  endif()
  quorix_harden(${target})
  quorix_unity(${target})
  if(NOT BUILD_SHARED_LIBS)
    target_compile_definitions(${target} PUBLIC QUORIX_STATIC)
  elseif(UNIX AND NOT APPLE AND NOT QUORIX_SANITIZE)
    # The standard library makes its templates visible. The linker script hides them.
    set(script ${PROJECT_SOURCE_DIR}/cmake/symbols.map)
    target_link_options(${target} PRIVATE LINKER:--no-undefined LINKER:--version-script=${script})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
  endif()
endfunction()
