# The web engine. Each toolkit has its own library for it, which is loaded before the first page.
# They are installed into a folder "quorix" beside the other libraries; WebComponent.h lists the
# other folders that are searched.
if(NOT QUORIX_WEB)
  message(STATUS "QUORIX_WEB is off: overlays open their pages outside the app")
  return()
endif()
find_package(Qt6 6.4 QUIET OPTIONAL_COMPONENTS WebEngineQuick WebEngineWidgets)
if(NOT TARGET Qt6::WebEngineQuick)
  if(NOT QUORIX_WEB STREQUAL "AUTO")
    message(FATAL_ERROR "QUORIX_WEB=${QUORIX_WEB} needs Qt WebEngine (scripts/install-packages web)")
  endif()
  message(STATUS "No Qt WebEngine: overlays open their pages outside the app")
  return()
endif()
if(NOT TARGET Qt6::WebEngineWidgets)
  message(STATUS "No Qt WebEngineWidgets: overlays of Qt Widgets open their pages outside the app")
endif()

function(add_web_component name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/qt/web/*.cpp
    ${PROJECT_SOURCE_DIR}/qt/web/${folder}/*.cpp ${PROJECT_SOURCE_DIR}/qt/web/${folder}/*.h)
  add_library(${name} MODULE ${sources})
  set_target_properties(${name} PROPERTIES AUTOMOC ON
    LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/quorix)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE quorix_warnings Qt6::WebEngineQuick ${ARGN})
  quorix_harden(${name})
  quorix_unity(${name})
endfunction()

add_web_component(QuorixWebQuick quick)
qt_add_resources(QuorixWebQuick "web" PREFIX "/quorix/web/quick" BASE ${PROJECT_SOURCE_DIR}/qt/web/quick
  FILES ${PROJECT_SOURCE_DIR}/qt/web/quick/WebPage.qml)
if(TARGET Qt6::WebEngineWidgets)
  add_web_component(QuorixWebWidgets widgets Qt6::WebEngineWidgets)
endif()

# The folders where a program finds them: under the same install prefix, or in the build folder of a
# host's own build. Programs of this build have a link to them, so that installed files do not
# contain folder names of the build machine.
include(GNUInstallDirs)
file(RELATIVE_PATH from_program /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${CMAKE_INSTALL_LIBDIR}/quorix)
set_property(SOURCE ${PROJECT_SOURCE_DIR}/qt/WebComponent.cpp APPEND PROPERTY
  COMPILE_DEFINITIONS QUORIX_WEB_FROM_PROGRAM="${from_program}"
  $<$<NOT:$<BOOL:${QUORIX_INSTALL}>>:QUORIX_WEB_BUILD_FOLDER="${PROJECT_BINARY_DIR}/quorix">)
if(QUORIX_INSTALL)
  foreach(folder tests bench examples/shop)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/quorix ${PROJECT_BINARY_DIR}/${folder})
    file(CREATE_LINK ${PROJECT_BINARY_DIR}/quorix ${PROJECT_BINARY_DIR}/${folder}/quorix SYMBOLIC)
  endforeach()
endif()
