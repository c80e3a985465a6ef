# The QML module. `import QuorixWidgets` works without an import path in every program that links
# QuorixWidgets::Qml, static or shared, because its types are then already registered.
file(GLOB qml_sources CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/qml/*.cpp ${PROJECT_SOURCE_DIR}/qml/*.h)
quorix_library(QuorixQml Qml ${qml_sources})
set_target_properties(QuorixQml PROPERTIES AUTOMOC ON)
target_link_libraries(QuorixQml PUBLIC QuorixQuick Qt6::Qml)
target_sources(QuorixQml INTERFACE
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/qml/link/LinkModule.cpp>)
# The generated registration includes headers without their folder.
target_include_directories(QuorixQml PRIVATE ${PROJECT_SOURCE_DIR}/qml)

# The module's folder is for tools, which read its types, and for programs that do not link the
# module and load its plugin. It may be in any QML import path, also in Qt's own.
set(qml_module_folder ${PROJECT_BINARY_DIR}/qml/QuorixWidgets)
file(GLOB_RECURSE qml_module_files CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/qml
  ${PROJECT_SOURCE_DIR}/qml/qmldir ${PROJECT_SOURCE_DIR}/qml/designer/*.metainfo
  ${PROJECT_SOURCE_DIR}/qml/designer/*.png)
foreach(file ${qml_module_files})
  configure_file(${PROJECT_SOURCE_DIR}/qml/${file} ${qml_module_folder}/${file} COPYONLY)
endforeach()

# Declares ViewItem as an item and the types of its signals' parameters, for the module's types.
qt_extract_metatypes(QuorixQuick)
qt_extract_metatypes(QuorixQt)
qt_add_plugin(QuorixQmlPlugin SHARED CLASS_NAME QuorixWidgetsPlugin)
quorix_harden(QuorixQmlPlugin)
qt_add_qml_module(QuorixQml
  URI QuorixWidgets
  VERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
  RESOURCE_PREFIX /qt-project.org/imports
  OUTPUT_DIRECTORY ${qml_module_folder}
  NO_GENERATE_QMLDIR
  PLUGIN_TARGET QuorixQmlPlugin
  CLASS_NAME QuorixWidgetsPlugin)
