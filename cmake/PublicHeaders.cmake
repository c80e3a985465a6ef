# The headers that a host may include, and those that they include. They are installed as header
# sets, and each must compile alone (target all_verify_interface_header_sets).

# Sets RESULT to HEADER... and all files of this tree that they include, directly or not.
function(quorix_reached_headers result)
  set(reached "")
  set(left ${ARGN})
  while(left)
    list(POP_FRONT left header)
    if(header IN_LIST reached)
      continue()
    endif()
    list(APPEND reached ${header})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${header})
    file(STRINGS ${PROJECT_SOURCE_DIR}/${header} includes REGEX "^#include \"")
    list(TRANSFORM includes REPLACE "^#include \"([^\"]+)\".*" "\\1")
    list(APPEND left ${includes})
  endwhile()
  set(${result} ${reached} PARENT_SCOPE)
endfunction()

# quorix_public_headers(TARGET HEADER...): adds these headers and those that they include to TARGET,
# except headers that an earlier call has added to another target.
function(quorix_public_headers target)
  quorix_reached_headers(headers ${ARGN})
  get_property(taken GLOBAL PROPERTY QUORIX_PUBLIC_HEADERS)
  list(REMOVE_ITEM headers ${taken})
  set_property(GLOBAL APPEND PROPERTY QUORIX_PUBLIC_HEADERS ${headers})
  list(TRANSFORM headers PREPEND ${PROJECT_SOURCE_DIR}/)
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${headers})
  set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
endfunction()

quorix_public_headers(QuorixWidgets
  # The widgets, and the figures of a token.
  QuorixWidgets/score/ScoreWidgetBuilder.h
  QuorixWidgets/info/InfoWidgetBuilder.h
  QuorixWidgets/data/TokenData.h
  QuorixWidgets/data/UserDetails.h
  # The faces, and fonts with them for both toolkits.
  QuorixWidgets/localization/Font.h
  QuorixWidgets/localization/UIFont.h
  QuorixWidgets/localization/FontError.h
  # Showing, printing and laying out a view without our surfaces.
  platform/swiftui/UIViewRepresentable.h
  platform/swiftui/TreePrinter.h
  platform/hosting/ViewHost.h
  platform/hosting/SheetPresenter.h
  platform/hosting/ViewWindow.h
  platform/hosting/SheetPictures.h
  platform/render/ScenePrinter.h
  # Drawing: the focus ring, the direction of a text, the files of an image, the address of a page.
  platform/hosting/FocusRing.h
  platform/text/TextAnalysis.h
  platform/graphics/AssetCatalog.h
  platform/webkit/WebContent.h
  # The host's own texts and themes.
  QuorixWidgets/localization/ResourceBundle.h
  platform/foundation/Bundle.h
  # System services that a host may replace.
  platform/foundation/MainQueue.h
  platform/foundation/URLSession.h
  platform/graphics/FontManager.h
  platform/uikit/URLOpener.h)
if(QUORIX_QT)
  quorix_public_headers(QuorixQt qt/Engine.h qt/Picture.h qt/SafeArea.h qt/SheetCloseReason.h)
  quorix_public_headers(QuorixQuick qt/quick/ViewItem.h)
  quorix_public_headers(QuorixQtWidgets qt/widgets/ViewWidget.h)
endif()
