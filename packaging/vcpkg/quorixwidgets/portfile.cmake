# An overlay port that builds the tree it lies in: --overlay-ports=QuorixWidgets/packaging/vcpkg
get_filename_component(SOURCE_PATH "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

vcpkg_check_features(OUT_FEATURE_OPTIONS options FEATURES
  qt QUORIX_QT
  tool QUORIX_TOOL
  web QUORIX_WEB)
vcpkg_cmake_configure(SOURCE_PATH "${SOURCE_PATH}"
  OPTIONS ${options} -DQUORIX_EXAMPLES=OFF -DQUORIX_INSTALL=ON)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME QuorixWidgets CONFIG_PATH lib/cmake/QuorixWidgets)
vcpkg_fixup_pkgconfig()
if("tool" IN_LIST FEATURES)
  vcpkg_copy_tools(TOOL_NAMES quorix AUTO_CLEAN)
endif()
file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share")

file(GLOB font_licences "${SOURCE_PATH}/QuorixWidgets/resources/Assets.xcassets/Fonts/OFL-*.txt")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE" ${font_licences})
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/usage" DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
