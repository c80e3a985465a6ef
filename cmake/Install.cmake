# The files of `cmake --install`, by component: core, qt, qml, web, tool and dev. Installed files
# find each other by relative paths, so the folder may be moved.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(quorix_licences_folder ${CMAKE_INSTALL_DATADIR}/doc/libquorixwidgets${quorix_series})
set(quorix_cmake_folder ${CMAKE_INSTALL_LIBDIR}/cmake/QuorixWidgets)
set(quorix_config_components "")

# quorix_install_library(TARGET NAME COMPONENT [NEEDS NAME...] [QT MODULE...] [STATIC_QT
# MODULE...]): installs the library and its headers, and makes NAME a component of find_package.
# This looks for the components in NEEDS and the Qt modules in QT, and those in STATIC_QT if the
# library is static.
macro(quorix_install_library target name component)
  cmake_parse_arguments(library "" "" "NEEDS;QT;STATIC_QT" ${ARGN})
  install(TARGETS ${target} EXPORT QuorixWidgets${name}Targets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${component}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${component} NAMELINK_COMPONENT dev
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quorixwidgets COMPONENT dev
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quorixwidgets)
  install(EXPORT QuorixWidgets${name}Targets NAMESPACE QuorixWidgets::
    DESTINATION ${quorix_cmake_folder} COMPONENT dev)
  if(NOT BUILD_SHARED_LIBS)
    list(APPEND library_QT ${library_STATIC_QT})
  endif()
  list(JOIN library_QT " " library_QT)
  string(APPEND quorix_config_components
    "set(_quorix_${name}_needs ${library_NEEDS})\nset(_quorix_${name}_qt ${library_QT})\n")
endmacro()

# quorix_install_pkgconfig(FILE TARGET DESCRIPTION REQUIRES REQUIRES_PRIVATE): installs FILE.pc.
# Private requirements of a shared library are needed to link a static one. Our own libraries
# require each other in the same version.
function(quorix_install_pkgconfig file target description requires requires_private)
  file(RELATIVE_PATH up /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
  string(REGEX REPLACE "/$" "" up "${up}")
  set(flags "")
  set(private .private)
  if(NOT BUILD_SHARED_LIBS)
    set(flags " -DQUORIX_STATIC")
    set(private "")
    set(requires "${requires} ${requires_private}")
    set(requires_private "")
  endif()
  file(WRITE ${PROJECT_BINARY_DIR}/${file}.pc
"prefix=\${pcfiledir}/${up}
libdir=\${prefix}/${CMAKE_INSTALL_LIBDIR}
includedir=\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}/quorixwidgets

Name: ${target}
Description: ${description}
Version: ${PROJECT_VERSION}
Requires: ${requires}
Requires.private: ${requires_private}
Libs: -L\${libdir} -l${target}
Libs${private}: -pthread
Cflags: -I\${includedir}${flags}
")
  install(FILES ${PROJECT_BINARY_DIR}/${file}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT dev)
endfunction()

quorix_install_library(QuorixWidgets QuorixWidgets core)
quorix_install_pkgconfig(quorixwidgets QuorixWidgets "Return standing widgets, without a surface"
  "" "icu-i18n icu-uc simdjson freetype2 pugixml zlib")
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${quorix_licences_folder} COMPONENT core)
file(GLOB quorix_font_licences
  ${PROJECT_SOURCE_DIR}/QuorixWidgets/resources/Assets.xcassets/Fonts/OFL-*.txt)
install(FILES ${quorix_font_licences} DESTINATION ${quorix_licences_folder} COMPONENT core)
# A starting point for themes.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/QuorixWidgets/resources
  DESTINATION ${CMAKE_INSTALL_DATADIR}/quorixwidgets COMPONENT dev FILES_MATCHING PATTERN "*.strings"
  PATTERN "Assets.xcassets" EXCLUDE)

if(QUORIX_QT)
  set(dbus "")
  if(TARGET Qt6::DBus)
    set(dbus DBus)
    set(dbus_package Qt6DBus)
  endif()
  quorix_install_library(QuorixQt Qt qt QT Gui STATIC_QT Network Svg ${dbus})
  quorix_install_library(QuorixQuick Quick qt NEEDS Qt QT Quick)
  quorix_install_library(QuorixQtWidgets QtWidgets qt NEEDS Qt QT Widgets)
  quorix_install_pkgconfig(quorixwidgets-qt QuorixQt "Return standing widgets as pictures"
    "quorixwidgets = ${PROJECT_VERSION} Qt6Gui" "Qt6Network Qt6Svg ${dbus_package}")
  quorix_install_pkgconfig(quorixwidgets-quick QuorixQuick
    "Return standing widgets in Qt Quick windows" "quorixwidgets-qt = ${PROJECT_VERSION} Qt6Quick" "")
  quorix_install_pkgconfig(quorixwidgets-qtwidgets QuorixQtWidgets
    "Return standing widgets among Qt Widgets" "quorixwidgets-qt = ${PROJECT_VERSION} Qt6Widgets" "")

  # The module's folder is for QML tools and for programs that load its plugin. Programs that link
  # the module compile LinkModule.cpp instead.
  quorix_install_library(QuorixQml Qml qml NEEDS Qt Quick QT Qml)
  quorix_install_pkgconfig(quorixwidgets-qml QuorixQml
    "Return standing widgets for QML" "quorixwidgets-quick = ${PROJECT_VERSION} Qt6Qml" "")
  set(qml_sources_folder ${CMAKE_INSTALL_DATADIR}/quorixwidgets)
  target_sources(QuorixQml INTERFACE
    $<INSTALL_INTERFACE:${qml_sources_folder}/LinkModule.cpp>)
  install(FILES ${PROJECT_SOURCE_DIR}/qml/link/LinkModule.cpp DESTINATION ${qml_sources_folder}
    COMPONENT dev)
  set(qml_folder ${CMAKE_INSTALL_LIBDIR}/qt6/qml/QuorixWidgets)
  set_target_properties(QuorixQmlPlugin PROPERTIES INSTALL_RPATH "${quorix_here}/../../..")
  install(TARGETS QuorixQmlPlugin LIBRARY DESTINATION ${qml_folder} COMPONENT qml)
  install(DIRECTORY ${PROJECT_BINARY_DIR}/qml/QuorixWidgets/ DESTINATION ${qml_folder} COMPONENT qml
    FILES_MATCHING PATTERN qmldir PATTERN "*.qmltypes" PATTERN "*.metainfo" PATTERN "*.png")
endif()
foreach(component QuorixWebQuick QuorixWebWidgets)
  if(TARGET ${component})
    install(TARGETS ${component} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/quorix COMPONENT web)
  endif()
endforeach()
if(TARGET quorix)
  file(RELATIVE_PATH to_libraries /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${CMAKE_INSTALL_LIBDIR})
  set_target_properties(quorix PROPERTIES INSTALL_RPATH "${quorix_here}/${to_libraries}")
  install(TARGETS quorix RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
  get_target_property(written quorix QUORIX_WRITTEN)
  if(written)
    # Debian's zsh reads completions of packages from its own folder.
    set(zsh_folder site-functions)
    if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
      set(zsh_folder vendor-completions)
    endif()
    install(FILES ${written}/quorix.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
    install(FILES ${written}/quorix
      DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT tool)
    install(FILES ${written}/_quorix DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/${zsh_folder} COMPONENT tool)
    install(FILES ${written}/quorix.fish
      DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT tool)
  endif()
endif()

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/QuorixWidgetsConfig.cmake.in
  ${PROJECT_BINARY_DIR}/QuorixWidgetsConfig.cmake INSTALL_DESTINATION ${quorix_cmake_folder}
  PATH_VARS CMAKE_INSTALL_LIBDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QuorixWidgetsConfigVersion.cmake
  COMPATIBILITY ${quorix_compatibility})
install(FILES ${PROJECT_BINARY_DIR}/QuorixWidgetsConfig.cmake
  ${PROJECT_BINARY_DIR}/QuorixWidgetsConfigVersion.cmake
  DESTINATION ${quorix_cmake_folder} COMPONENT dev)
