# The QML module: `import QuorixWidgets` works in every program that links QuorixWidgets::Qml, with no
# import path to set, be the library static or shared: the import finds the types registered.
file(GLOB qml_sources CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/qml/*.cpp ${PROJECT_SOURCE_DIR}/qml/*.h)
quorix_library(QuorixQml Qml ${qml_sources})
set_target_properties(QuorixQml PROPERTIES AUTOMOC ON)
target_link_libraries(QuorixQml PUBLIC QuorixQuick Qt6::Qml)
target_sources(QuorixQml INTERFACE
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/qml/link/LinkModule.cpp>)
# The generated registration names headers without their folder.
target_include_directories(QuorixQml PRIVATE ${PROJECT_SOURCE_DIR}/qml)

# The folder of the module is for tools, which read its types, and for programs that don't link it,
# which load its plugin: it may stand in any QML import path, Qt's own first of all.
set(qml_module_folder ${PROJECT_BINARY_DIR}/qml/QuorixWidgets)
file(GLOB_RECURSE qml_module_files CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/qml
  ${PROJECT_SOURCE_DIR}/qml/qmldir ${PROJECT_SOURCE_DIR}/qml/designer/*.metainfo
  ${PROJECT_SOURCE_DIR}/qml/designer/*.png)
foreach(file ${qml_module_files})
  configure_file(${PROJECT_SOURCE_DIR}/qml/${file} ${qml_module_folder}/${file} COPYONLY)
endforeach()

# From which the types learn that a ViewItem is an item, and what its signals pass.
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
