# Debian packages, one for each component: `cpack -G DEB` in a build of the preset "packages".

set(CPACK_PACKAGE_NAME quorixwidgets)
set(CPACK_PACKAGE_VENDOR QuorixWidgets)
set(CPACK_PACKAGE_CONTACT "QuorixWidgets maintainers <maintainers@quorix.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Return standing widgets for shopping apps")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")  # hosts accept later versions of the series
set(CPACK_DEBIAN_PACKAGE_SECTION libs)

# quorix_debian_package(COMPONENT NAME DESCRIPTION [COMPONENT...]): puts the files of COMPONENT into
# the package NAME, which depends on the packages of the other components.
macro(quorix_debian_package component name description)
  string(TOUPPER ${component} upper)
  list(APPEND CPACK_COMPONENTS_ALL ${component})
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
  set(CPACK_COMPONENT_${upper}_DESCRIPTION "${description}")
  set(CPACK_COMPONENT_${upper}_DEPENDS ${ARGN})
endmacro()

set(libraries core)
set(CPACK_COMPONENTS_ALL "")
quorix_debian_package(core libquorixwidgets${quorix_series} "the widgets, without a surface")
if(QUORIX_QT)
  list(APPEND libraries qt qml)
  quorix_debian_package(qt libquorixwidgets${quorix_series}-qt "surfaces for Qt Quick and Qt Widgets" core)
  quorix_debian_package(qml qml6-module-quorixwidgets "the QML module" qt)
endif()
if(TARGET QuorixWebQuick)
  quorix_debian_package(web libquorixwidgets${quorix_series}-web "web pages by Qt WebEngine" qt)
  # What the page of Qt Quick imports. In Debian 12 these packages do not depend on each other.
  set(CPACK_DEBIAN_WEB_PACKAGE_DEPENDS
    "qml6-module-qtwebengine, qml6-module-qtqml, qml6-module-qtqml-workerscript")
  # Packages of different series conflict, because they have their files in the same folder.
  set(CPACK_DEBIAN_WEB_PACKAGE_PROVIDES quorixwidgets-web)
  set(CPACK_DEBIAN_WEB_PACKAGE_CONFLICTS quorixwidgets-web)
  set(CPACK_DEBIAN_WEB_PACKAGE_REPLACES quorixwidgets-web)
endif()
if(TARGET quorix)
  quorix_debian_package(tool quorixwidgets-tool "the quorix tool, which previews the widgets" qt)
  set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION devel)
endif()
quorix_debian_package(dev libquorixwidgets-dev "headers, and what CMake and pkg-config read" ${libraries})
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_SUGGESTS "qt6-base-dev (>= 6.4), qt6-declarative-dev (>= 6.4)")
set(CPACK_DEBIAN_QT_PACKAGE_SUGGESTS libquorixwidgets${quorix_series}-web)
include(CPack)
