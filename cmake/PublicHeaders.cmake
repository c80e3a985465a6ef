# The headers that a host may include, and those that they reach: header sets, which are installed
# and of which each must compile alone (target all_verify_interface_header_sets).

# Sets RESULT to the files of this tree that HEADER... reach by their includes, themselves included.
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

# quorix_public_headers(TARGET HEADER...): these and what they reach are TARGET's, unless a target
# named before has them.
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
  # The widgets and the figures of a token.
  QuorixWidgets/score/ScoreWidgetBuilder.h
  QuorixWidgets/info/InfoWidgetBuilder.h
  QuorixWidgets/data/TokenData.h
  QuorixWidgets/data/UserDetails.h
  # The faces, and fonts of them for either toolkit.
  QuorixWidgets/localization/Font.h
  QuorixWidgets/localization/UIFont.h
  QuorixWidgets/localization/FontError.h
  # To show, print and lay out a view without one of our surfaces.
  platform/swiftui/UIViewRepresentable.h
  platform/swiftui/TreePrinter.h
  platform/hosting/ViewHost.h
  platform/hosting/SheetPresenter.h
  platform/hosting/ViewWindow.h
  platform/render/ScenePrinter.h
  # To draw it: the direction of a text, the files of an image, the address of a page.
  platform/text/TextAnalysis.h
  platform/graphics/AssetCatalog.h
  platform/webkit/WebContent.h
  # The host's own texts and looks.
  QuorixWidgets/localization/ResourceBundle.h
  platform/foundation/Bundle.h
  # What a host may put in the place of the system's.
  platform/foundation/MainQueue.h
  platform/foundation/URLSession.h
  platform/graphics/FontManager.h
  platform/uikit/URLOpener.h)
if(QUORIX_QT)
  quorix_public_headers(QuorixQt qt/Engine.h qt/Picture.h qt/SafeArea.h qt/SheetCloseReason.h)
  quorix_public_headers(QuorixQuick qt/quick/ViewItem.h)
  quorix_public_headers(QuorixQtWidgets qt/widgets/ViewWidget.h)
endif()
