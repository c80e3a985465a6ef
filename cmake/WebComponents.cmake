# The web engine, for each toolkit a library of its own that is loaded when the first page is to be
# shown. A host ships them beside its program or in a folder "quorix" in one of Qt's plugin paths.
if(QUORIX_WEB)
  find_package(Qt6 6.4 QUIET OPTIONAL_COMPONENTS WebEngineQuick WebEngineWidgets)
endif()
if(NOT QUORIX_WEB OR NOT TARGET Qt6::WebEngineQuick)
  message(STATUS "No Qt WebEngine: overlays open their pages outside the app")
  return()
endif()

function(add_web_component name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/qt/web/*.cpp
    ${PROJECT_SOURCE_DIR}/qt/web/${folder}/*.cpp ${PROJECT_SOURCE_DIR}/qt/web/${folder}/*.h)
  add_library(${name} MODULE ${sources})
  set_target_properties(${name} PROPERTIES AUTOMOC ON
    LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/quorix)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE quorix_warnings Qt6::WebEngineQuick ${ARGN})
endfunction()

add_web_component(QuorixWebQuick quick)
qt_add_resources(QuorixWebQuick "web" PREFIX "/quorix/web/quick" BASE ${PROJECT_SOURCE_DIR}/qt/web/quick
  FILES ${PROJECT_SOURCE_DIR}/qt/web/quick/WebPage.qml)
if(TARGET Qt6::WebEngineWidgets)
  add_web_component(QuorixWebWidgets widgets Qt6::WebEngineWidgets)
endif()

# Programs of this build find them where they are built.
set_property(SOURCE ${PROJECT_SOURCE_DIR}/qt/WebComponentLoader.cpp APPEND PROPERTY
  COMPILE_DEFINITIONS QUORIX_WEB_BUILD_FOLDER="${PROJECT_BINARY_DIR}/quorix")
