# The QML module: `import QuorixWidgets` works in every program that links QuorixWidgets::Qml, with no
# import path to set, from a static library and from a shared one.
file(GLOB qml_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/qt/qml/*.cpp ${PROJECT_SOURCE_DIR}/qt/qml/*.h)
add_library(QuorixQml STATIC ${qml_sources})
add_library(QuorixWidgets::Qml ALIAS QuorixQml)
set_target_properties(QuorixQml PROPERTIES AUTOMOC ON)
target_link_libraries(QuorixQml PUBLIC QuorixQuick Qt6::Qml PRIVATE quorix_warnings)

# Tools learn from it that the widgets are items.
qt_extract_metatypes(QuorixQuick)

qt_add_plugin(QuorixQmlPlugin SHARED CLASS_NAME QuorixWidgetsPlugin)
qt_add_qml_module(QuorixQml
  URI QuorixWidgets
  VERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
  RESOURCE_PREFIX /qt-project.org/imports
  OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/qml/QuorixWidgets
  DEPENDENCIES QtQuick
  DESIGNER_SUPPORTED
  PLUGIN_TARGET QuorixQmlPlugin CLASS_NAME QuorixWidgetsPlugin)
# The generated registration names headers without their folder.
target_include_directories(QuorixQml PRIVATE ${PROJECT_SOURCE_DIR}/qt/qml)
target_sources(QuorixQml INTERFACE
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/qt/qml/link/LinkModule.cpp>)
